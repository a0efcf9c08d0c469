#include "settings/archivename.h"

#include <QFile>
#include <QtEndian>
#include <QTextCodec>

#include <algorithm>
#include <zip.h>

namespace {

QTextCodec* Gbk()
{
    return QTextCodec::codecForName("GBK");
}

// The flag is not in libzip's interface. Asked for the strict reading it translates every name from an old
// code page unless the name is plain ASCII or carries the flag: then it comes back as it is stored.
QString Decode(zip* archive, quint64 index)
{
    const char* stored = zip_get_name(archive, index, ZIP_FL_ENC_RAW);
    if (!stored)
        return QString();
    const QByteArray raw(stored);
    const QByteArray strict(zip_get_name(archive, index, ZIP_FL_ENC_STRICT));
    if (raw == strict)
        return QString::fromUtf8(raw);
    // Codecs differ in what they report of broken text; only a name that encodes back was read right.
    const QString name = Gbk()->toUnicode(raw);
    return Gbk()->fromUnicode(name) == raw ? name : QString();
}

/// The directory at the end of an archive, empty where it is not found: the bytes of one entry after another.
QByteArray ReadDirectory(QFile& file)
{
    constexpr qint64 endSize = 22;
    constexpr qint64 maxComment = 0xFFFF;
    constexpr qint64 maxDirectory = 1 << 30;
    file.seek(std::max<qint64>(0, file.size() - endSize - maxComment));
    const QByteArray tail = file.readAll();
    const int end = tail.lastIndexOf("PK\5\6");
    if (end < 0 || tail.size() - end < endSize)
        return QByteArray();
    const auto size = qFromLittleEndian<quint32>(tail.constData() + end + 12);
    const auto offset = qFromLittleEndian<quint32>(tail.constData() + end + 16);
    return size <= std::min(file.size(), maxDirectory) && file.seek(offset) ? file.read(size) : QByteArray();
}

bool HasControl(const QString& name)
{
    for (const QChar c : name) {
        if (c.category() == QChar::Other_Control)
            return true;
    }
    return false;
}

bool StaysBelow(const QString& name)
{
    if (name.size() > 1 && name.at(1) == QLatin1Char(':'))
        return false;
    QString path = name;
    if (path.endsWith(QLatin1Char('/')))
        path.chop(1);
    const QVector<QStringRef> components = path.splitRef(QLatin1Char('/'));
    for (const QStringRef& component : components) {
        if (component.isEmpty() || component == QLatin1String(".") || component == QLatin1String(".."))
            return false;
    }
    return true;
}

} // namespace

bool HasArchiveCodec()
{
    return Gbk() != nullptr;
}

qint64 FindNulInNames(const QString& zipPath)
{
    constexpr int fixedSize = 46;
    QFile file(zipPath);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray directory = ReadDirectory(file);
    int at = 0;
    for (qint64 i = 0; directory.size() - at >= fixedSize && directory.mid(at, 4) == "PK\1\2"; ++i) {
        const char* entry = directory.constData() + at;
        const int nameSize = qFromLittleEndian<quint16>(entry + 28);
        const int extraSize = qFromLittleEndian<quint16>(entry + 30);
        const int commentSize = qFromLittleEndian<quint16>(entry + 32);
        if (directory.mid(at + fixedSize, nameSize).contains('\0'))
            return i;
        at += fixedSize + nameSize + extraSize + commentSize;
    }
    return -1;
}

ArchiveName EncodeArchiveName(const QString& name)
{
    const QByteArray bytes = Gbk()->fromUnicode(name);
    if (Gbk()->toUnicode(bytes) == name)
        return {bytes, false};
    return {name.toUtf8(), true};
}

QString GetArchiveEntryName(zip* archive, quint64 index)
{
    QString name = Decode(archive, index);
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return HasControl(name) || !StaysBelow(name) ? QString() : name;
}
