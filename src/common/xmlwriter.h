#pragma once

#include "common/fieldtext.h"
#include "common/xmlattributes.h"

#include <QDomDocument>
#include <QDomElement>

#include <string>
#include <string_view>
#include <vector>

class QIODevice;

/// Writes elements and their attributes, in the order of the calls.
class XmlWriter
{
public:
    virtual ~XmlWriter() = default;
    virtual void BeginElement(std::string_view name) = 0;
    virtual void Attribute(const char* name, std::string_view text) = 0; ///< UTF-8, not yet escaped
    virtual void Text(std::string_view text) = 0; ///< the content of an element without children
    virtual void EndElement() = 0;
};

/// Writes a document as UTF-8 text with an XML declaration, indented by 4. Flush() says whether all was
/// written and can be read again.
class StreamXmlWriter : public XmlWriter
{
public:
    explicit StreamXmlWriter(QIODevice& device, std::string_view encodingName = "UTF-8"); ///< [ref]

    void BeginElement(std::string_view name) override;
    void Attribute(const char* name, std::string_view text) override;
    void Text(std::string_view text) override;
    void EndElement() override;
    bool Flush();
    QString GetRefusal() const { return m_refusal; } ///< why readers would refuse it; empty: they would not

private:
    void StartLine();
    void FlushWhenLarge();
    void Refuse(const std::string& name, qint64 limit);

    QIODevice& m_device;
    std::string m_buffer;
    std::vector<std::string> m_open;
    bool m_tagOpen = false;
    bool m_hasText = false;
    bool m_failed = false;
    qint64 m_written = 0;  ///< bytes given to the device
    qint64 m_tagBegin = 0; ///< where in the document the attributes of the open tag begin
    QString m_refusal;
};

/// Appends elements below a parent in a DOM document.
class DomXmlWriter : public XmlWriter
{
public:
    DomXmlWriter(const QDomDocument& document, const QDomElement& parent);

    void BeginElement(std::string_view name) override;
    void Attribute(const char* name, std::string_view text) override;
    void Text(std::string_view text) override;
    void EndElement() override;

private:
    QDomDocument m_document;
    QDomElement m_current;
};

/// Tells the user that a document would be larger than readers take.
QString DocumentTooLarge();

/// Writes the fields of a record description as attributes of the element just begun.
class AttributeWriter
{
public:
    explicit AttributeWriter(XmlWriter& writer) : m_writer(writer) {}

    template <class T> void Field(const char* name, const T& value, FieldUse use = FieldUse::Both)
    {
        if (use == FieldUse::NeverWritten)
            return;
        m_text.clear();
        fieldtext::Append(m_text, value);
        m_writer.Attribute(name, m_text);
    }

private:
    XmlWriter& m_writer;
    std::string m_text;
};
