#include "common/xmlinput.h"

#include "common/texts.h"
#include "common/xmlreader.h"

#include <QIODevice>
#include <QRegularExpression>
#include <QTextCodec>
#include <QTextDecoder>

#include <algorithm>

namespace {

/// The encoding that a declaration names, in capitals; empty when it names none.
QString DeclaredEncoding(const QString& start)
{
    static const QRegularExpression declaration(
        QStringLiteral(R"(^\x{FEFF}?<\?xml\s[^>]*?\sencoding\s*=\s*["']([^"']*)["'])"));
    return declaration.match(start).captured(1).toUpper();
}

/// By its byte order mark, or by the zero byte beside the first character.
const char* Utf16Codec(const QByteArray& start)
{
    if (start.startsWith("\xFF\xFE") || start.startsWith(QByteArray("<\0", 2)))
        return "UTF-16LE";
    if (start.startsWith("\xFE\xFF") || start.startsWith(QByteArray("\0<", 2)))
        return "UTF-16BE";
    return nullptr;
}

} // namespace

XmlInput::XmlInput(QIODevice& source) : m_source(source)
{}

XmlInput::~XmlInput() = default;

bool XmlInput::Fail(const char* why)
{
    m_error = Texts::tr(why);
    m_text.clear();
    return false;
}

bool XmlInput::Start()
{
    m_started = true;
    const char* codec = Utf16Codec(m_raw);
    const QString start =
        codec ? QTextCodec::codecForName(codec)->toUnicode(m_raw) : QString::fromLatin1(m_raw.left(4096));
    const QString declared = DeclaredEncoding(start);
    const bool agrees = codec ? declared.isEmpty() || declared.startsWith(QLatin1String("UTF-16"))
                              : declared.isEmpty() || declared == QLatin1String("UTF-8")
                                    || declared == QLatin1String("US-ASCII")
                                    || declared == QLatin1String("ISO-8859-1");
    if (!agrees)
        return Fail(QT_TRANSLATE_NOOP("OrvanData", "不支持文件的编码。"));
    if (declared == QLatin1String("ISO-8859-1"))
        codec = "ISO-8859-1";
    if (codec)
        m_decoder.reset(QTextCodec::codecForName(codec)->makeDecoder());
    m_asciiOnly = declared == QLatin1String("US-ASCII");
    return true;
}

/// Adds the bytes just read to the text. False when they are not of the encoding.
bool XmlInput::Decode()
{
    if (!m_decoder) {
        m_cleaner.Take(m_raw.constData(), m_raw.size(), m_text);
        return !m_asciiOnly
               || std::none_of(m_raw.cbegin(), m_raw.cend(), [](char c) { return (c & 0x80) != 0; });
    }
    QString text = m_half + m_decoder->toUnicode(m_raw);
    m_half.clear();
    if (!m_atEnd && !text.isEmpty() && text.at(text.size() - 1).isHighSurrogate()) {
        m_half = text.right(1); // the other half comes with the next bytes
        text.chop(1);
    }
    const QByteArray utf8 = text.toUtf8();
    m_cleaner.Take(utf8.constData(), utf8.size(), m_text);
    return text.isValidUtf16() && !m_decoder->hasFailure();
}

const QByteArray& XmlInput::Read(qint64 most)
{
    const bool isFirst = !m_started;
    m_text.resize(0);
    m_raw.resize(static_cast<int>(most));
    const qint64 got = m_source.read(m_raw.data(), most);
    m_raw.resize(static_cast<int>(std::max(got, qint64(0))));
    m_total += m_raw.size();
    m_atEnd = got == 0;
    if (got < 0)
        Fail(QT_TRANSLATE_NOOP("OrvanData", "文件无法读取。"));
    else if (m_total > kMaxXmlBytes)
        Fail(QT_TRANSLATE_NOOP("OrvanData", "文件过大。"));
    else if ((m_started || Start()) && !Decode())
        Fail(QT_TRANSLATE_NOOP("OrvanData", "文件含有与其编码不符的字符。"));
    if (m_atEnd)
        m_cleaner.Finish(m_text);
    if (isFirst && m_text.startsWith("\xEF\xBB\xBF"))
        m_text.remove(0, 3);
    return m_text;
}
