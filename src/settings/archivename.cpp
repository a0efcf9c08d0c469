#include "settings/archivename.h"

#include <QTextCodec>

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
    // The old code page has a character for every byte, NUL too, where the stored name seems to end.
    if (QString::fromUtf8(strict).size() != raw.size())
        return QString();
    // Codecs differ in what they report of broken text; only a name that encodes back was read right.
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

QString GetArchiveEntryName(zip* archive, quint64 index)
{
    QString name = Decode(archive, index);
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return HasControl(name) || !StaysBelow(name) ? QString() : name;
}
