#include "console.h"

#include <QJsonDocument>
#include <QRegularExpression>

#include <cstdio>

namespace {

void WriteError(const char* kind, const QString& subject, const QString& what)
{
    QString line = QStringLiteral("orvan: ");
    if (!subject.isEmpty())
        line += subject + QStringLiteral(": ");
    line += QLatin1String(kind) + what;
    line.replace(QRegularExpression(QStringLiteral("[\\s]*[\\r\\n]+[\\s]*")), QStringLiteral(" "));
    std::fprintf(stderr, "%s\n", line.trimmed().toLocal8Bit().constData());
}

void Write(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
}

} // namespace

int Fail(int status, const QString& subject, const QString& what)
{
    WriteError("", subject, what);
    return status;
}

void Warn(const QString& subject, const QString& what)
{
    WriteError("warning: ", subject, what);
}

void Print(const QString& text)
{
    Write(text.toLocal8Bit());
}

void PrintJson(const QJsonObject& object)
{
    Write(QJsonDocument(object).toJson(QJsonDocument::Indented));
}

bool FlushOutput()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

QSize ParseSize(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,6})x([0-9]{1,6})$"));
    const QRegularExpressionMatch match = form.match(text);
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

bool ParseNumber(const QString& text, int* number)
{
    static const QRegularExpression form(QStringLiteral("^[0-9]{1,9}$"));
    *number = text.toInt();
    return form.match(text).hasMatch();
}
