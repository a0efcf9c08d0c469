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

constexpr qint64 kMaxFileSize = 1 << 22; ///< keys cost a hundred times their size

/// Whether the file was written to its end: QSettings does not tell when the disk became full.
bool IsComplete(const QString& path, const QVariantMap& values, const char* codec)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(file.size() - 1) || file.read(1) != "\n")
        return false;
    QSettings settings(path, QSettings::IniFormat);
    if (codec)
        settings.setIniCodec(codec);
    const QStringList keys = values.keys();
    return std::all_of(keys.begin(), keys.end(), [&](const QString& key) { return settings.contains(key); });
}

/// Changes a copy of the file. QSettings would leave an empty file on a full disk, and remembers what it
/// wrote whether it got there or not, so it is read back under another name.
bool WriteCopy(const QString& path, const QVariantMap& values, const char* codec, QByteArray* content)
{
    const ScratchFolder scratch;
    const QString written = scratch.Path("written.ini");
    const QString readBack = scratch.Path("read.ini");
    if (!scratch.IsValid() || CheckIni(path, codec) != IniCheck::Harmless
        || (QFile::exists(path) && !QFile::copy(path, written)))
        return false;
    {
        QSettings file(written, QSettings::IniFormat);
        if (codec)
            file.setIniCodec(codec);
        for (auto value = values.begin(); value != values.end(); ++value)
            file.setValue(value.key(), value.value());
        file.sync();
        if (file.status() != QSettings::NoError)
            return false;
    }
    if (!QFile::rename(written, readBack) || CheckIni(readBack, codec) != IniCheck::Harmless
        || !IsComplete(readBack, values, codec))
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
    if (file.size() > kMaxFileSize)
        return IniCheck::Harmful;
    return MayHoldHarmfulTypes(file.readAll(), codec) ? IniCheck::Harmful : IniCheck::Harmless;
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
        return WriteCopy(path, values, codec, &content) && file.write(content) == content.size();
    });
}
