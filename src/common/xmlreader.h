#pragma once

#include "common/xmlattributes.h"

#include <QString>

#include <string_view>

class QDomElement;
class QIODevice;

// Limits of a document, so that a hostile one costs neither time nor memory.
constexpr int kMaxXmlDepth = 1024;
constexpr qint64 kMaxXmlBytes = qint64(256) * 1024 * 1024;
constexpr int kMaxXmlText = 16 << 20;  ///< bytes of an attribute, or of the text in an element
constexpr int kMaxXmlAttributes = 256; ///< of one element
/// Bytes of one tag, comment or instruction. It holds the longest text with each character written as a
/// reference, and a little more.
constexpr qint64 kMaxXmlMarkup = qint64(6) * kMaxXmlText + 64 * 1024;

/// Takes one element of a document as it is read. Whoever makes a handler owns it. A reader of many equal
/// elements uses one handler for all of them.
class XmlHandler
{
public:
    virtual ~XmlHandler() = default;
    virtual void Begin(XmlAttributes&) {}
    virtual XmlHandler* Child(std::string_view /*name*/) { return nullptr; } ///< [ref] null: passed over
    virtual void Aside() {} ///< there is a comment, an instruction or a CDATA section in it
    virtual void End() {}
    /// A reason to stop reading; empty: go on. Only the handler above the root is asked, now and then.
    virtual QString GetRefusal() const { return QString(); }
};

/// Reads a document with constant memory. `document` stands above the root and is asked for it by Child.
/// Refused are document type declarations and whatever is beyond the limits above. The NUL that closes a
/// digest, also as a reference, and other controls are passed over. False: `error` says why.
bool ParseXml(QIODevice& source, XmlHandler& document, QString* error);

/// Gives an element of a DOM tree and all below it to a handler.
void WalkDom(const QDomElement& element, XmlHandler& handler);
