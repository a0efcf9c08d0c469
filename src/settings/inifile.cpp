#include "settings/inifile.h"

#include "common/atomicfile.h"
#include "common/inputfile.h"
#include "settings/initypes.h"
#include "settings/scratchfolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace {

void SetCodec(QSettings& file, const char* codec)
{
    if (codec)
        file.setIniCodec(codec);
}

/// As QSettings takes a key that it is given.
QString Normalised(const QString& key)
{
    return key.split(QLatin1Char('/'), Qt::SkipEmptyParts).join(QLatin1Char('/'));
}

/// QSettings reads keys with an empty part, but cannot be asked for them, and writes a file with them that
/// does not read again.
bool HasName(const QString& key)
{
    return !key.isEmpty() && key == Normalised(key);
}

bool WriteNew(const QString& path, const QVariantMap& values, const char* codec)
{
    QSettings file(path, QSettings::IniFormat);
    SetCodec(file, codec);
    for (auto value = values.begin(); value != values.end(); ++value)
        file.setValue(value.key(), value.value());
    file.sync();
    return file.status() == QSettings::NoError;
}

/// Whether the file was written to its end: QSettings does not tell when the disk became full.
bool IsComplete(const QString& path, const QVariantMap& values, const char* codec)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(file.size() - 1) || file.read(1) != "\n")
        return false;
    QVariantMap read;
    return ReadIniValues(path, &read, codec) && read.keys() == values.keys();
}

/// The file as it is to be. QSettings would leave an empty file on a full disk, and remembers what it wrote
/// whether it got there or not, so copies are read and written, and what is written is read back under
/// another name.
bool MakeContent(const QString& path, const QVariantMap& changed, const char* codec, QByteArray* content)
{
    const ScratchFolder scratch;
    const QString before = scratch.Path("before.ini");
    const QString written = scratch.Path("written.ini");
    const QString readBack = scratch.Path("read.ini");
    QVariantMap values;
    if (!scratch.IsValid() || CheckIni(path, codec) != IniCheck::Harmless
        || (QFile::exists(path) && !QFile::copy(path, before)) || !ReadIniValues(before, &values, codec))
        return false;
    for (auto value = changed.begin(); value != changed.end(); ++value)
        values.insert(Normalised(value.key()), value.value());
    if (!WriteNew(written, values, codec) || !QFile::rename(written, readBack)
        || CheckIni(readBack, codec) != IniCheck::Harmless || !IsComplete(readBack, values, codec))
        return false;
    QFile file(readBack);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *content = file.readAll();
    return content->size() == file.size();
}

} // namespace

IniCheck CheckIni(const QString& path, const char* codec)
{
    QFile file(path);
    if (!file.exists())
        return IniCheck::Harmless;
    if (!OpenInput(file))
        return IniCheck::Unreadable;
    if (file.size() > kMaxIniBytes)
        return IniCheck::Harmful;
    return MayHoldHarmfulTypes(file.readAll(), codec != nullptr) ? IniCheck::Harmful : IniCheck::Harmless;
}

bool ReadIniValues(const QString& path, QVariantMap* values, const char* codec)
{
    QSettings file(path, QSettings::IniFormat);
    SetCodec(file, codec);
    const QStringList keys = file.allKeys();
    if (file.status() != QSettings::NoError)
        return false;
    for (const QString& key : keys)
        if (HasName(key) && file.contains(key))
            values->insert(key, file.value(key));
    return true;
}

bool WriteIniValues(const QString& path, const QVariantMap& values, const char* codec)
{
    if (values.isEmpty())
        return true;
    QDir().mkpath(QFileInfo(path).path());
    // The file is read while its replacement is locked, so that of two programs neither undoes the other's
    // change.
    return ReplaceFile(path, [&](QIODevice& file) {
        QByteArray content;
        return MakeContent(path, values, codec, &content) && file.write(content) == content.size();
    });
}
