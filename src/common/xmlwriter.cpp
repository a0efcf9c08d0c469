#include "common/xmlwriter.h"

#include "common/texts.h"
#include "common/xmlreader.h"

#include <QIODevice>

namespace {

constexpr size_t kBufferSize = size_t(256) * 1024;
constexpr qint64 kMaxTag = kMaxXmlMarkup - 64 * 1024; ///< readers count the blanks before a tag too

/// Line ends and tabs become references: a parser turns them into blanks inside an attribute.
const char* Reference(char c)
{
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\t':
        return "&#x9;";
    case '\n':
        return "&#xa;";
    case '\r':
        return "&#xd;";
    default:
        return nullptr;
    }
}

void AppendEscaped(std::string& out, std::string_view text)
{
    size_t begin = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const char* reference = Reference(text[i]);
        if (!reference)
            continue;
        out.append(text, begin, i - begin).append(reference);
        begin = i + 1;
    }
    out.append(text, begin);
}

QString FromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace

QString DocumentTooLarge()
{
    return Texts::tr("内容超过%1 MiB，文件未保存。").arg(kMaxXmlBytes >> 20);
}

StreamXmlWriter::StreamXmlWriter(QIODevice& device, std::string_view encodingName) : m_device(device)
{
    m_buffer.reserve(kBufferSize + kBufferSize / 4);
    m_buffer.append("<?xml version=\"1.0\" encoding=\"").append(encodingName).append("\"?>\n");
}

void StreamXmlWriter::StartLine()
{
    if (m_tagOpen)
        m_buffer.append(">\n");
    m_buffer.append(m_open.size() * 4, ' ');
}

void StreamXmlWriter::BeginElement(std::string_view name)
{
    FlushWhenLarge();
    StartLine();
    m_buffer.append("<").append(name);
    m_open.emplace_back(name);
    m_tagOpen = true;
    m_tagBegin = m_written + static_cast<qint64>(m_buffer.size());
}

void StreamXmlWriter::Attribute(const char* name, std::string_view text)
{
    m_buffer.append(" ").append(name).append("=\"");
    if (text.size() <= kMaxXmlText)
        AppendEscaped(m_buffer, text);
    else
        Refuse(m_open.back() + '/' + name, kMaxXmlText);
    m_buffer.push_back('"');
    if (m_written + static_cast<qint64>(m_buffer.size()) - m_tagBegin > kMaxTag)
        Refuse(m_open.back(), kMaxTag);
}

void StreamXmlWriter::Text(std::string_view text)
{
    if (m_tagOpen)
        m_buffer.push_back('>');
    m_tagOpen = false;
    m_hasText = true;
    if (text.size() <= kMaxXmlText)
        AppendEscaped(m_buffer, text);
    else
        Refuse(m_open.back(), kMaxXmlText);
}

void StreamXmlWriter::Refuse(const std::string& name, qint64 limit)
{
    if (m_refusal.isEmpty())
        m_refusal =
            Texts::tr("“%1”的文字超过%2 MiB，文件未保存。").arg(FromUtf8(name), QString::number(limit >> 20));
}

void StreamXmlWriter::EndElement()
{
    const std::string name = std::move(m_open.back());
    m_open.pop_back();
    if (m_tagOpen) {
        m_buffer.append("/>\n");
    } else {
        if (!m_hasText)
            StartLine();
        m_buffer.append("</").append(name).append(">\n");
    }
    m_tagOpen = false;
    m_hasText = false;
}

void StreamXmlWriter::FlushWhenLarge()
{
    if (m_buffer.size() >= kBufferSize)
        Flush();
}

bool StreamXmlWriter::Flush()
{
    const auto size = static_cast<qint64>(m_buffer.size());
    m_written += size;
    if (m_written > kMaxXmlBytes && m_refusal.isEmpty())
        m_refusal = DocumentTooLarge();
    m_failed = m_failed || !m_refusal.isEmpty() || m_device.write(m_buffer.data(), size) != size;
    m_buffer.clear();
    return !m_failed;
}

DomXmlWriter::DomXmlWriter(const QDomDocument& document, const QDomElement& parent)
    : m_document(document), m_current(parent)
{}

void DomXmlWriter::BeginElement(std::string_view name)
{
    QDomElement child = m_document.createElement(FromUtf8(name));
    m_current.appendChild(child);
    m_current = child;
}

void DomXmlWriter::Attribute(const char* name, std::string_view text)
{
    m_current.setAttribute(QString::fromUtf8(name), FromUtf8(text));
}

void DomXmlWriter::Text(std::string_view text)
{
    m_current.appendChild(m_document.createTextNode(FromUtf8(text)));
}

void DomXmlWriter::EndElement()
{
    m_current = m_current.parentNode().toElement();
}
