#include "common/xmlreader.h"

#include <expat.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QDomElement>
#include <QIODevice>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr int kChunk = 256 * 1024;

QString Message(const char* text)
{
    return QCoreApplication::translate("OrvanData", text);
}

struct ParserDeleter
{
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

/// Keeps the handlers of the elements now open; a null one stands for an element that is passed over.
struct ParseState
{
    XML_Parser parser = nullptr;
    std::vector<XmlHandler*> open;
    int depth = 0; ///< of all elements
    QString refusal;

    void Refuse(const char* why)
    {
        refusal = Message(why);
        XML_StopParser(parser, XML_FALSE);
    }
};

void OnStart(void* data, const XML_Char* name, const XML_Char** attributes)
{
    auto& state = *static_cast<ParseState*>(data);
    if (++state.depth > kMaxXmlDepth)
        return state.Refuse(QT_TRANSLATE_NOOP("OrvanData", "元素嵌套过深。"));
    XmlHandler* parent = state.open.back();
    XmlHandler* handler = parent ? parent->Child(name) : nullptr;
    state.open.push_back(handler);
    if (!handler)
        return;
    XmlAttributes values(attributes);
    handler->Begin(values);
}

void OnEnd(void* data, const XML_Char*)
{
    auto& state = *static_cast<ParseState*>(data);
    if (!state.refusal.isEmpty())
        return;
    --state.depth;
    if (state.open.back())
        state.open.back()->End();
    state.open.pop_back();
}

void OnDoctype(void* data, const XML_Char*, const XML_Char*, const XML_Char*, int)
{
    static_cast<ParseState*>(data)->Refuse(QT_TRANSLATE_NOOP("OrvanData", "不接受文档类型声明。"));
}

/// Removes the control bytes that no XML document may hold; how many bytes are left.
int DropControls(char* bytes, int count)
{
    char* end = std::remove_if(bytes, bytes + count, [](char c) {
        return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r';
    });
    return static_cast<int>(end - bytes);
}

QString ParserError(const ParseState& state)
{
    if (!state.refusal.isEmpty())
        return state.refusal;
    return Message(QT_TRANSLATE_NOOP("OrvanData", "不是有效的XML（第%1行）："))
               .arg(XML_GetCurrentLineNumber(state.parser))
           + QString::fromLatin1(XML_ErrorString(XML_GetErrorCode(state.parser)));
}

bool FeedAll(QIODevice& source, ParseState& state, QString* error)
{
    qint64 total = 0;
    for (;;) {
        void* buffer = XML_GetBuffer(state.parser, kChunk);
        const qint64 got = buffer ? source.read(static_cast<char*>(buffer), kChunk) : -1;
        if (got < 0) {
            *error = Message(QT_TRANSLATE_NOOP("OrvanData", "文件无法读取。"));
            return false;
        }
        total += got;
        if (total > kMaxXmlBytes) {
            *error = Message(QT_TRANSLATE_NOOP("OrvanData", "文件过大。"));
            return false;
        }
        const int kept = DropControls(static_cast<char*>(buffer), static_cast<int>(got));
        if (XML_ParseBuffer(state.parser, kept, got == 0) == XML_STATUS_ERROR) {
            *error = ParserError(state);
            return false;
        }
        if (got == 0)
            return true;
    }
}

} // namespace

bool ParseXml(QIODevice& source, XmlHandler& document, QString* error)
{
    QString ignored;
    ParseState state;
    const std::unique_ptr<XML_ParserStruct, ParserDeleter> parser(XML_ParserCreate(nullptr));
    state.parser = parser.get();
    state.open.push_back(&document);
    XML_SetUserData(state.parser, &state);
    XML_SetElementHandler(state.parser, OnStart, OnEnd);
    XML_SetStartDoctypeDeclHandler(state.parser, OnDoctype);
    return FeedAll(source, state, error ? error : &ignored);
}

void WalkDom(const QDomElement& element, XmlHandler& handler)
{
    const QDomNamedNodeMap map = element.attributes();
    std::vector<QByteArray> texts;
    for (int i = 0; i < map.count(); ++i) {
        const QDomAttr attribute = map.item(i).toAttr();
        texts.push_back(attribute.name().toUtf8());
        texts.push_back(attribute.value().remove(QChar(QChar::Null)).toUtf8());
    }
    std::vector<const char*> pairs;
    pairs.reserve(texts.size() + 1);
    for (const QByteArray& text : texts)
        pairs.push_back(text.constData());
    pairs.push_back(nullptr);

    XmlAttributes attributes(pairs.data());
    handler.Begin(attributes);
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (XmlHandler* below = handler.Child(child.tagName().toUtf8().constData()))
            WalkDom(child, *below);
    }
    handler.End();
}
