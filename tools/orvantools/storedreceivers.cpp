#include "orvantools/storedreceivers.h"

#include <OrvanData/orvandata.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTextDecoder>
#include <QXmlStreamReader>

#include <iterator>
#include <memory>
#include <utility>

namespace OrvanTools {

namespace {

constexpr qint64 kChunk = 1 << 18; ///< bytes

/// The number behind a prefix, 0 when the name is another.
int NumberBehind(const QStringRef& name, const char* prefix)
{
    const QLatin1String start(prefix);
    return name.startsWith(start) ? name.mid(start.size()).toInt() : 0;
}

/// Of UTF-16 or UTF-8 with a byte order mark; else what is looked for is ASCII, whatever the other bytes
/// mean.
QTextCodec* CodecOf(const QByteArray& start)
{
    return QTextCodec::codecForUtfText(start, QTextCodec::codecForName("ISO-8859-1"));
}

/// Takes the tags out of a document. Text, comments, instructions and CDATA sections may be as long as the
/// file and are passed over: with each piece the XML reader would begin them anew.
class TagPicker
{
public:
    QString Take(const QString& text); ///< the tags that end in the next piece

private:
    void TakeOfTag(QChar c);
    void PassOver(QChar c);

    QString m_tags;
    QString m_tag;      ///< the beginning of one; empty: between tags
    QChar m_quote;      ///< ends the value of the attribute; null: in no value
    QChar m_mark;       ///< stands before the `>` that ends what is passed over; null: nothing is passed over
    int m_marks = 0;    ///< how many of it have to stand there
    int m_marksNow = 0; ///< how many did so far
};

QString TagPicker::Take(const QString& text)
{
    m_tags.resize(0);
    for (const QChar c : text) {
        if (!m_mark.isNull())
            PassOver(c);
        else if (!m_tag.isEmpty() || c == QLatin1Char('<'))
            TakeOfTag(c);
    }
    return m_tags;
}

void TagPicker::TakeOfTag(QChar c)
{
    m_tag += c;
    if (!m_quote.isNull()) {
        if (c == m_quote)
            m_quote = QChar();
    } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
        m_quote = c;
    } else if (c == QLatin1Char('>')) {
        m_tags += m_tag;
        m_tag.resize(0);
    } else {
        const std::pair<const char*, char> asides[] = {{"<?", '?'}, {"<!--", '-'}, {"<![CDATA[", ']'}};
        for (const auto& [begin, mark] : asides) {
            if (m_tag != QLatin1String(begin))
                continue;
            m_mark = QLatin1Char(mark);
            m_marks = mark == '?' ? 1 : 2;
            m_marksNow = 0;
            m_tag.resize(0);
        }
    }
}

void TagPicker::PassOver(QChar c)
{
    if (c == QLatin1Char('>') && m_marksNow >= m_marks)
        m_mark = QChar();
    m_marksNow = c == m_mark ? m_marksNow + 1 : 0;
}

} // namespace

bool StoredReceivers::Read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    if (file.peek(2) != "PK")
        return ReadDocument(path);
    QTemporaryDir unpacked;
    CConstantData::UnZipFile(path, unpacked.path());
    return ReadDocument(unpacked.filePath(QStringLiteral("project/new.prj")));
}

bool StoredReceivers::ReadDocument(const QString& path)
{
    m_senders.clear();
    m_sender = nullptr;
    m_port = nullptr;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const std::unique_ptr<QTextDecoder> decoder(CodecOf(file.peek(4))->makeDecoder());
    // Digests end with a NUL character in some form. XML readers take neither that nor other controls.
    static const QRegularExpression refused(
        QStringLiteral("&#x?0+;|[\\x{0}-\\x{8}\\x{B}\\x{C}\\x{E}-\\x{1F}]"));
    bool hasRoot = false;
    TagPicker tags;
    QXmlStreamReader xml;
    while (!file.atEnd()) {
        xml.addData(tags.Take(decoder->toUnicode(file.read(kChunk))).remove(refused));
        while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::Invalid) {
            if (xml.isStartElement())
                TakeElement(xml);
            hasRoot = hasRoot || xml.isStartElement();
        }
        if (xml.hasError() && xml.error() != QXmlStreamReader::PrematureEndOfDocumentError)
            return false;
    }
    return hasRoot && !xml.hasError();
}

void StoredReceivers::TakeElement(const QXmlStreamReader& xml)
{
    static const QString attribute = QStringLiteral("FirstRcvIndex");
    if (const int sender = NumberBehind(xml.name(), "Sender_")) {
        m_sender = &m_senders[sender];
        m_port = nullptr;
    } else if (const int port = NumberBehind(xml.name(), "Port_")) {
        m_port = m_sender ? &(*m_sender)[port] : nullptr;
    } else if (const int tile = NumberBehind(xml.name(), "Tile_")) {
        if (m_port)
            m_port->emplace(tile, xml.attributes().value(attribute).toInt());
    }
}

std::vector<int> StoredReceivers::OfPort(int sender, int port) const
{
    std::vector<int> values;
    if (sender < 0 || sender >= static_cast<int>(m_senders.size()))
        return values;
    const auto& ports = std::next(m_senders.begin(), sender)->second;
    const auto found = ports.find(port + 1);
    if (found == ports.end())
        return values;
    for (const auto& tile : found->second)
        values.push_back(tile.second);
    return values;
}

} // namespace OrvanTools
