#include "settings/inifile.h"

#include "common/atomicfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

namespace {

/// Whether the file was written to its end: QSettings does not tell when the disk became full.
bool IsComplete(const QString& path, const QStringList& keys)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(file.size() - 1) || file.read(1) != "\n")
        return false;
    return QSettings(path, QSettings::IniFormat).allKeys() == keys;
}

/// Changes a copy of the file. QSettings would leave an empty file on a full disk, and remembers what it
/// wrote whether it got there or not, so it is read back under another name.
bool WriteCopy(const QString& path, const QVariantMap& values, const char* codec, QByteArray* content)
{
    const QTemporaryDir scratch;
    const QString written = scratch.filePath(QStringLiteral("written.ini"));
    const QString readBack = scratch.filePath(QStringLiteral("read.ini"));
    if (!scratch.isValid() || (QFile::exists(path) && !QFile::copy(path, written)))
        return false;
    QStringList keys;
    {
        QSettings file(written, QSettings::IniFormat);
        if (codec)
            file.setIniCodec(codec);
        for (auto value = values.begin(); value != values.end(); ++value)
            file.setValue(value.key(), value.value());
        file.sync();
        keys = file.allKeys();
        if (file.status() != QSettings::NoError)
            return false;
    }
    if (!QFile::rename(written, readBack) || !IsComplete(readBack, keys))
        return false;
    QFile file(readBack);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *content = file.readAll();
    return content->size() == file.size();
}

} // namespace

bool WriteIniValues(const QString& path, const QVariantMap& values, const char* codec)
{
    if (values.isEmpty())
        return true;
    QDir().mkpath(QFileInfo(path).path());
    // The file is read while its replacement is locked, so that of two programs neither undoes the other's
    // change.
    return ReplaceFile(path, [&](QIODevice& file) {
        QByteArray content;
        return WriteCopy(path, values, codec, &content) && file.write(content) == content.size();
    });
}
