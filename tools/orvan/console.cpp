#include "console.h"

#include "command.h"
#include "inputfile.h"

#include <orvantools/printable.h>

#include <QJsonDocument>
#include <QRegularExpression>

#include <cstdio>

namespace {

void WriteError(const char* kind, const QString& subject, const QString& what)
{
    QString line = QStringLiteral("orvan: ");
    if (!subject.isEmpty())
        line += InputName(subject) + QStringLiteral(": ");
    line += QLatin1String(kind) + what;
    line.replace(QRegularExpression(QStringLiteral("[\\s]*[\\r\\n]+[\\s]*")), QStringLiteral(" "));
    std::fprintf(stderr, "%s\n", OrvanTools::Printable(line.trimmed()).toLocal8Bit().constData());
}

QString& Help()
{
    static QString help = QStringLiteral("orvan --help");
    return help;
}

void Write(const char* bytes, int size)
{
    std::fwrite(bytes, 1, static_cast<size_t>(size), stdout);
}

/// Bytes of the character that begins with `lead`, for those that may hold an unprintable one.
int LengthFrom(uchar lead)
{
    if (lead == 0x7F)
        return 1;
    return lead == 0xC2 || lead == 0xD8 ? 2 : lead == 0xE2 ? 3 : 0;
}

} // namespace

int Fail(int status, const QString& subject, const QString& what)
{
    WriteError("", subject, status == StatusUsage ? what + QStringLiteral("; see ") + Help() : what);
    return status;
}

void SetHelp(const QString& command)
{
    Help() = command;
}

void Warn(const QString& subject, const QString& what)
{
    WriteError("warning: ", subject, what);
}

void Print(const QString& text)
{
    for (int begin = 0; begin < text.size();) {
        const int end = text.indexOf(QLatin1Char('\n'), begin);
        const QString line = text.mid(begin, end < 0 ? -1 : end - begin);
        const QByteArray bytes = OrvanTools::Printable(line).toLocal8Bit() + (end < 0 ? "" : "\n");
        Write(bytes.constData(), bytes.size());
        begin = end < 0 ? text.size() : end + 1;
    }
}

/// Qt's writer escapes the controls of ASCII alone.
void PrintJsonPiece(const QByteArray& json)
{
    int written = 0;
    for (int i = 0; i < json.size(); ++i) {
        const int length = LengthFrom(static_cast<uchar>(json.at(i)));
        if (length == 0)
            continue;
        const QChar character = QString::fromUtf8(json.constData() + i, length).at(0);
        if (!OrvanTools::IsUnprintable(character))
            continue;
        Write(json.constData() + written, i - written);
        std::printf("\\u%04x", static_cast<unsigned>(character.unicode()));
        written = i + length;
        i = written - 1;
    }
    Write(json.constData() + written, json.size() - written);
}

void PrintJson(const QJsonObject& object)
{
    PrintJsonPiece(QJsonDocument(object).toJson(QJsonDocument::Indented));
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
