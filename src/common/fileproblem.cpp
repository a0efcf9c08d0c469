#include "common/fileproblem.h"

#include "common/texts.h"

#include <QFile>
#include <QTemporaryFile>

#include <filesystem>

QString CannotRead(const QString& path, const QString& reason)
{
    return Texts::tr("无法读取“%1”：%2").arg(path, reason);
}

QString CannotWrite(const QString& path, const QString& reason)
{
    if (reason.isEmpty())
        return Texts::tr("无法写入“%1”。").arg(path);
    return Texts::tr("无法写入“%1”：%2").arg(path, reason);
}

QString CannotMakeFolder(const QString& path, int error)
{
    return Texts::tr("无法创建文件夹“%1”：%2").arg(path, qt_error_string(error));
}

QString NotRegular(const QString& path)
{
    return Texts::tr("“%1”不是普通文件。").arg(path);
}

bool MakeFolder(const QString& path, QString* error)
{
    std::error_code code;
    const std::filesystem::path folder(QFile::encodeName(path).toStdString());
    std::filesystem::create_directories(folder, code);
    return !code || Fail(error, CannotMakeFolder(path, code.value()));
}

bool CanWriteIn(const QString& folder, QString* error)
{
    QTemporaryFile probe(folder + QStringLiteral("/XXXXXX"));
    const bool written = probe.open() && probe.write("x") == 1 && probe.flush();
    return written || Fail(error, CannotWrite(folder, probe.errorString()));
}

QString WhyNotWritable(const QString& folder)
{
    QString why;
    return CanWriteIn(folder, &why) ? CannotWrite(folder, QString()) : why;
}
