#include "common/xmlreader.h"

#include "common/texts.h"
#include "common/xmlinput.h"
#include "common/xmltagguard.h"

#include <QByteArray>
#include <QDomElement>

#include <algorithm>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <memory>
#include <vector>

namespace {

constexpr qint64 kChunk = 64 * 1024;
constexpr qint64 kMaxChunk = 16 << 20;
constexpr int kMaxNames = 1024;
constexpr const char* kTooManyAttributes = QT_TRANSLATE_NOOP("OrvanData", "元素的属性过多。");
constexpr const char* kTextTooLong = QT_TRANSLATE_NOOP("OrvanData", "文字过长。");

struct ParserDeleter
{
    void operator()(xmlParserCtxtPtr parser) const { xmlFreeParserCtxt(parser); }
    void operator()(xmlDictPtr names) const { xmlDictFree(names); }
};

/// The handlers of the open elements. Null for an element that is passed over.
struct ParseState
{
    xmlParserCtxtPtr parser = nullptr;
    std::vector<XmlHandler*> open;
    std::string prefixed; ///< the name of an element with a prefix
    int depth = 0;        ///< of all elements
    qint64 text = 0;      ///< bytes since the last tag
    qint64 fed = 0;       ///< bytes given to the parser
    qint64 heard = 0;     ///< those given when it last told something
    bool hadRoot = false;
    int error = XML_ERR_OK; ///< the parser's first
    int errorLine = 0;
    QString refusal;
    std::vector<std::unique_ptr<xmlDict, ParserDeleter>> oldNames; ///< open elements may refer to them

    void Hear() { heard = fed; }

    void Refuse(const char* why)
    {
        refusal = Texts::tr(why);
        xmlStopParser(parser);
    }

    std::string_view FullName(const xmlChar* name, const xmlChar* prefix)
    {
        const auto chars = [](const xmlChar* from) { return reinterpret_cast<const char*>(from); };
        if (!prefix)
            return chars(name);
        prefixed.assign(chars(prefix)).append(":").append(chars(name));
        return prefixed;
    }
};

ParseState& StateOf(void* data)
{
    return *static_cast<ParseState*>(data);
}

bool HasLongValue(const xmlChar* const* attributes, int count)
{
    for (int i = 0; i < count; ++i, attributes += XmlAttributes::kPointers)
        if (attributes[4] - attributes[3] > kMaxXmlText)
            return true;
    return false;
}

void OnStart(void* data, const xmlChar* name, const xmlChar* prefix, const xmlChar*, int namespaces,
             const xmlChar**, int count, int, const xmlChar** attributes)
{
    ParseState& state = StateOf(data);
    state.Hear();
    state.hadRoot = true;
    state.text = 0;
    if (++state.depth > kMaxXmlDepth)
        return state.Refuse(QT_TRANSLATE_NOOP("OrvanData", "元素嵌套过深。"));
    if (count + namespaces > kMaxXmlAttributes)
        return state.Refuse(kTooManyAttributes);
    if (HasLongValue(attributes, count))
        return state.Refuse(kTextTooLong);
    XmlHandler* parent = state.open.back();
    XmlHandler* handler = parent ? parent->Child(state.FullName(name, prefix)) : nullptr;
    state.open.push_back(handler);
    if (!handler)
        return;
    XmlAttributes values(attributes, count);
    handler->Begin(values);
}

void OnEnd(void* data, const xmlChar*, const xmlChar*, const xmlChar*)
{
    ParseState& state = StateOf(data);
    state.Hear();
    --state.depth;
    state.text = 0;
    if (state.open.back())
        state.open.back()->End();
    state.open.pop_back();
}

void OnText(void* data, const xmlChar*, int length)
{
    ParseState& state = StateOf(data);
    state.Hear();
    state.text += length;
    if (state.text > kMaxXmlText)
        state.Refuse(kTextTooLong);
}

void OnAside(ParseState& state)
{
    state.Hear();
    if (state.open.back())
        state.open.back()->Aside();
}

void OnCData(void* data, const xmlChar* text, int length)
{
    OnAside(StateOf(data));
    OnText(data, text, length);
}

void OnComment(void* data, const xmlChar*)
{
    OnAside(StateOf(data));
}

void OnInstruction(void* data, const xmlChar*, const xmlChar*)
{
    OnAside(StateOf(data));
}

void OnDoctype(void* data, const xmlChar*, const xmlChar*, const xmlChar*)
{
    StateOf(data).Refuse(QT_TRANSLATE_NOOP("OrvanData", "不接受文档类型声明。"));
}

/// Without this the parser would print its errors.
void OnError(void* data, xmlErrorPtr error)
{
    ParseState& state = StateOf(data);
    if (error->level != XML_ERR_FATAL || state.error != XML_ERR_OK)
        return;
    state.error = error->code;
    state.errorLine = error->line;
}

xmlSAXHandler Callbacks()
{
    xmlSAXHandler sax = {};
    sax.initialized = XML_SAX2_MAGIC;
    sax.startElementNs = OnStart;
    sax.endElementNs = OnEnd;
    sax.characters = OnText;
    sax.ignorableWhitespace = OnText;
    sax.cdataBlock = OnCData;
    sax.comment = OnComment;
    sax.processingInstruction = OnInstruction;
    sax.internalSubset = OnDoctype;
    sax.serror = OnError;
    return sax;
}

/// In the user's language, which the parser does not speak.
const char* ReasonOf(const ParseState& state)
{
    switch (state.error) {
    case XML_ERR_DOCUMENT_END:
        return state.depth == 0 && state.hadRoot ? QT_TRANSLATE_NOOP("OrvanData", "根元素之后还有内容")
                                                 : QT_TRANSLATE_NOOP("OrvanData", "内容不完整");
    case XML_ERR_DOCUMENT_EMPTY:
    case XML_ERR_TAG_NOT_FINISHED:
    case XML_ERR_ATTRIBUTE_NOT_FINISHED:
    case XML_ERR_COMMENT_NOT_FINISHED:
    case XML_ERR_CDATA_NOT_FINISHED:
        return QT_TRANSLATE_NOOP("OrvanData", "内容不完整");
    case XML_ERR_TAG_NAME_MISMATCH:
        return QT_TRANSLATE_NOOP("OrvanData", "标签不匹配");
    case XML_ERR_ATTRIBUTE_REDEFINED:
        return QT_TRANSLATE_NOOP("OrvanData", "属性重复");
    case XML_ERR_UNDECLARED_ENTITY:
    case XML_ERR_INVALID_CHARREF:
    case XML_ERR_INVALID_DEC_CHARREF:
    case XML_ERR_INVALID_HEX_CHARREF:
        return QT_TRANSLATE_NOOP("OrvanData", "引用无效");
    case XML_ERR_NO_MEMORY:
        return QT_TRANSLATE_NOOP("OrvanData", "内存不足");
    default:
        return QT_TRANSLATE_NOOP("OrvanData", "语法错误");
    }
}

QString ParserError(const ParseState& state)
{
    if (!state.refusal.isEmpty())
        return state.refusal;
    return Texts::tr("不是有效的XML（第%1行）：%2。")
        .arg(QString::number(state.errorLine), Texts::tr(ReasonOf(state)));
}

/// The parser keeps each name once, in a table of limited width. Numbered elements would make it slower and
/// slower, so a new table begins before it is full.
void RenewNames(ParseState& state)
{
    if (xmlDictSize(state.parser->dict) < kMaxNames)
        return;
    xmlDictPtr names = xmlDictCreate();
    if (!names)
        return;
    state.oldNames.emplace_back(state.parser->dict);
    state.parser->dict = names;
    state.parser->str_xml = xmlDictLookup(names, BAD_CAST "xml", -1);
    state.parser->str_xmlns = xmlDictLookup(names, BAD_CAST "xmlns", -1);
    state.parser->str_xml_ns = xmlDictLookup(names, XML_XML_NAMESPACE, -1);
}

/// Why reading stops after these bytes; empty when it goes on.
QString Feed(const QByteArray& bytes, bool last, ParseState& state)
{
    state.fed += bytes.size();
    xmlParseChunk(state.parser, bytes.constData(), bytes.size(), last);
    if (!state.refusal.isEmpty() || state.parser->wellFormed == 0)
        return ParserError(state);
    if (state.fed - state.heard > kMaxXmlMarkup)
        return Texts::tr("标记过长。");
    RenewNames(state);
    return state.open.front()->GetRefusal();
}

/// The parser compares the attributes of a tag with one another. That is soon done for a tag within two
/// chunks. In a longer one they are counted before they are parsed.
bool HoldsTooManyAttributes(const ParseState& state, const QByteArray& next)
{
    if (state.fed - state.heard < kChunk)
        return false;
    const xmlParserInput& held = *state.parser->input;
    XmlTagGuard guard;
    return !guard.Accepts(reinterpret_cast<const char*>(held.cur), held.end - held.cur)
           || !guard.Accepts(next.constData(), next.size());
}

bool FeedAll(QIODevice& source, ParseState& state, QString* error)
{
    XmlInput input(source);
    do {
        // With every chunk the parser looks at an unfinished tag again, so chunks grow with the tag.
        const QByteArray& bytes = input.Read(std::clamp(state.fed - state.heard, kChunk, kMaxChunk));
        *error = input.GetError();
        if (error->isEmpty() && HoldsTooManyAttributes(state, bytes))
            *error = Texts::tr(kTooManyAttributes);
        if (error->isEmpty())
            *error = Feed(bytes, input.AtEnd(), state);
    } while (error->isEmpty() && !input.AtEnd());
    return error->isEmpty();
}

} // namespace

bool ParseXml(QIODevice& source, XmlHandler& document, QString* error)
{
    static const bool initialised = (xmlInitParser(), true); // once, before threads use the parser
    Q_UNUSED(initialised)
    QString ignored;
    ParseState state;
    xmlSAXHandler callbacks = Callbacks();
    const std::unique_ptr<xmlParserCtxt, ParserDeleter> parser(
        xmlCreatePushParserCtxt(&callbacks, &state, nullptr, 0, nullptr));
    state.parser = parser.get();
    state.parser->charset = XML_CHAR_ENCODING_UTF8; // told, else guessed from the first bytes
    state.open.push_back(&document);
    // The limits here replace the parser's own. Only the five entities of XML itself are known, and nothing
    // is ever loaded. The input is UTF-8 whatever the document says.
    xmlCtxtUseOptions(state.parser,
                      XML_PARSE_HUGE | XML_PARSE_NOENT | XML_PARSE_NONET | XML_PARSE_IGNORE_ENC);
    return FeedAll(source, state, error ? error : &ignored);
}

void WalkDom(const QDomElement& element, XmlHandler& handler)
{
    const QDomNamedNodeMap map = element.attributes();
    std::vector<QByteArray> texts; // names and values in turn
    for (int i = 0; i < map.count(); ++i) {
        const QDomAttr attribute = map.item(i).toAttr();
        texts.push_back(attribute.name().toUtf8());
        texts.push_back(attribute.value().remove(QChar(QChar::Null)).toUtf8());
    }
    std::vector<const unsigned char*> fives;
    for (size_t i = 0; i < texts.size(); i += 2) {
        const auto* value = reinterpret_cast<const unsigned char*>(texts[i + 1].constData());
        fives.insert(fives.end(), {reinterpret_cast<const unsigned char*>(texts[i].constData()), nullptr,
                                   nullptr, value, value + texts[i + 1].size()});
    }
    XmlAttributes attributes(fives.data(), map.count());
    handler.Begin(attributes);
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (XmlHandler* below = handler.Child(child.tagName().toUtf8().constData()))
            WalkDom(child, *below);
    }
    handler.End();
}
