#include "settings/inifile.h"

#include "common/atomicfile.h"
#include "common/inputfile.h"
#include "settings/scratchfolder.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace {

constexpr qint64 kMaxFileSize = 1 << 22; ///< keys cost a hundred times their size
constexpr const char* kTypedValue = "@Variant(";
constexpr int kQt4Float = 135;

/// Whether a text is no value with a type, or one of a type that reads without harm.
bool IsHarmless(const QString& text)
{
    if (!text.startsWith(QLatin1String(kTypedValue)))
        return true;
    const QByteArray content = text.mid(int(qstrlen(kTypedValue))).toLatin1();
    QDataStream stream(content);
    quint32 type = 0;
    stream >> type;
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime:
    case QMetaType::QColor:
    case QMetaType::QKeySequence:
    case kQt4Float:
        return true;
    default:
        return false;
    }
}

/// The content with a character before each value and each item of a list, so that QSettings takes all of
/// them for texts.
QByteArray WithoutTypes(const QByteArray& content)
{
    QByteArray marked;
    marked.reserve(content.size() + content.size() / 8);
    bool inValue = false;
    for (const char c : content) {
        marked.append(c);
        if (c == ',' || (c == '=' && !inValue))
            marked.append('!');
        inValue = c != '\n' && c != '\r' && (inValue || c == '=');
    }
    return marked;
}

/// Whether the file was written to its end: QSettings does not tell when the disk became full.
bool IsComplete(const QString& path, const QVariantMap& values)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(file.size() - 1) || file.read(1) != "\n")
        return false;
    const QSettings settings(path, QSettings::IniFormat);
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
    if (!scratch.IsValid() || CheckIni(path) != IniCheck::Harmless
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
    if (!QFile::rename(written, readBack) || !IsComplete(readBack, values))
        return false;
    QFile file(readBack);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *content = file.readAll();
    return content->size() == file.size();
}

} // namespace

IniCheck CheckIni(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return IniCheck::Harmless;
    if (!OpenInput(file))
        return IniCheck::Unreadable;
    if (file.size() > kMaxFileSize)
        return IniCheck::Harmful;
    const ScratchFolder scratch;
    QFile marked(scratch.Path("marked.ini"));
    const QByteArray content = WithoutTypes(file.readAll());
    if (!marked.open(QIODevice::WriteOnly) || marked.write(content) != content.size() || !marked.flush())
        return IniCheck::Unreadable;
    const QSettings texts(marked.fileName(), QSettings::IniFormat);
    const QStringList keys = texts.allKeys();
    const bool harmless = std::all_of(keys.begin(), keys.end(), [&texts](const QString& key) {
        const QStringList values = texts.value(key).toStringList();
        return std::all_of(values.begin(), values.end(),
                           [](const QString& value) { return IsHarmless(value.mid(1).trimmed()); });
    });
    return harmless ? IniCheck::Harmless : IniCheck::Harmful;
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
