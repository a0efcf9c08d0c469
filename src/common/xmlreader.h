#pragma once

#include "common/xmlattributes.h"

#include <QString>

#include <string_view>

class QDomElement;
class QIODevice;

// What a document may hold, so that a hostile one costs neither time nor memory.
constexpr int kMaxXmlDepth = 1024;
constexpr qint64 kMaxXmlBytes = qint64(256) * 1024 * 1024;
constexpr int kMaxXmlText = 16 << 20;  ///< bytes of an attribute, or of the text in an element
constexpr int kMaxXmlAttributes = 256; ///< of one element
/// Bytes of one tag, comment or instruction: the longest text, each of its characters a reference, and a
/// little.
constexpr qint64 kMaxXmlMarkup = qint64(6) * kMaxXmlText + 64 * 1024;

/// Takes one element of a document as it is read. Handlers belong to whoever made them; a reader of many
/// equal elements hands out the same one again and again.
class XmlHandler
{
public:
    virtual ~XmlHandler() = default;
    virtual void Begin(XmlAttributes&) {}
    virtual XmlHandler* Child(std::string_view /*name*/) { return nullptr; } ///< [ref] null: passed over
    virtual void Aside() {} ///< there is a comment, an instruction or a CDATA section in it
    virtual void End() {}
    /// Why the document is read no further. The handler above the root is asked now and then; empty: read on.
    virtual QString GetRefusal() const { return QString(); }
};

/// Reads a document with constant memory; `document` stands above the root and is asked for it by Child. A
/// document type declaration and whatever goes beyond the limits above are refused. What no XML document can
/// hold (the NUL that closes a digest, also as a reference, and other controls) is passed over. False:
/// `error` says why.
bool ParseXml(QIODevice& source, XmlHandler& document, QString* error);

/// Gives an element of a DOM tree and all below it to a handler.
void WalkDom(const QDomElement& element, XmlHandler& handler);
