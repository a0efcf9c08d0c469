#include "settings/archivename.h"

#include <QByteArrayMatcher>
#include <QFile>
#include <QtEndian>
#include <QTextCodec>

#include <zip.h>

namespace {

constexpr int kRecordSize = 46; ///< bytes of a directory record in front of its name

QTextCodec* Gbk()
{
    return QTextCodec::codecForName("GBK");
}

/// libzip does not give the flag that marks a name as UTF-8. When asked for the strict reading, it translates
/// a name from an old code page, unless the name is plain ASCII or has the flag. Then it comes back as it is
/// stored.
QString Decode(zip* archive, quint64 index)
{
    const char* stored = zip_get_name(archive, index, ZIP_FL_ENC_RAW);
    if (!stored)
        return QString();
    const QByteArray raw(stored);
    const QByteArray strict(zip_get_name(archive, index, ZIP_FL_ENC_STRICT));
    if (raw == strict)
        return QString::fromUtf8(raw);
    // Codecs report broken text in different ways. A name that encodes back to the same bytes was read right.
    const QString name = Gbk()->toUnicode(raw);
    return Gbk()->fromUnicode(name) == raw ? name : QString();
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

/// The name in the directory record at `record`, with a blank for each NUL. Null when there is no NUL in it,
/// or no such record. Stops at the first other control, so that records that overlap cost no more than their
/// bytes.
QByteArray NameWithNul(const QByteArray& bytes, int record)
{
    if (bytes.size() - record < kRecordSize)
        return QByteArray();
    const int begin = record + kRecordSize;
    const int size = qFromLittleEndian<quint16>(bytes.constData() + record + 28);
    if (bytes.size() - begin < size)
        return QByteArray();
    bool hasNul = false;
    for (int i = begin; i < begin + size; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if (byte != 0 && byte < ' ')
            return QByteArray();
        hasNul = hasNul || byte == 0;
    }
    return hasNul ? bytes.mid(begin, size).replace('\0', ' ') : QByteArray();
}

/// The names for which a directory record with a NUL stands anywhere in the file. An archive may hold several
/// directories, and libzip chooses which one counts.
QSet<QByteArray> FindNamesWithNul(QFile& file, const QSet<QByteArray>& names)
{
    constexpr int chunk = 1 << 20;
    constexpr int overlap = kRecordSize + 0xFFFF; // of a record, wherever a chunk ends
    const QByteArrayMatcher record("PK\1\2");
    QSet<QByteArray> found;
    QByteArray bytes;
    for (;;) {
        const QByteArray more = file.read(chunk);
        if (more.isEmpty())
            return file.error() == QFileDevice::NoError ? found : names;
        bytes = bytes.right(overlap) + more;
        for (int at = record.indexIn(bytes); at >= 0; at = record.indexIn(bytes, at + 1)) {
            const QByteArray name = NameWithNul(bytes, at);
            if (!name.isNull() && names.contains(name))
                found.insert(name);
        }
    }
}

} // namespace

bool HasArchiveCodec()
{
    return Gbk() != nullptr;
}

ArchiveName EncodeArchiveName(const QString& name)
{
    const QByteArray bytes = Gbk()->fromUnicode(name);
    if (Gbk()->toUnicode(bytes) == name)
        return {bytes, false};
    return {name.toUtf8(), true};
}

ArchiveNames::ArchiveNames(zip* archive, const QString& path) : m_archive(archive)
{
    QSet<QByteArray> inDoubt;
    const auto count = static_cast<zip_uint64_t>(zip_get_num_entries(archive, 0));
    for (zip_uint64_t i = 0; i < count; ++i) {
        const QByteArray name(zip_get_name(archive, i, ZIP_FL_ENC_RAW));
        if (name.contains(' '))
            inDoubt.insert(name);
    }
    if (inDoubt.isEmpty())
        return;
    QFile file(path);
    m_withNul = file.open(QIODevice::ReadOnly) ? FindNamesWithNul(file, inDoubt) : inDoubt;
}

QString ArchiveNames::Get(quint64 index) const
{
    if (m_withNul.contains(QByteArray(zip_get_name(m_archive, index, ZIP_FL_ENC_RAW))))
        return QString();
    QString name = Decode(m_archive, index);
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return HasControl(name) || !StaysBelow(name) ? QString() : name;
}
