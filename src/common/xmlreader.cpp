#include "common/xmlreader.h"

#include "common/xmlcleaner.h"
#include "common/xmltagguard.h"

#include <expat.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QDomElement>
#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace {

constexpr qint64 kChunk = 256 * 1024;
constexpr qint64 kMaxChunk = 16 << 20;
constexpr const char* kTextTooLong = QT_TRANSLATE_NOOP("OrvanData", "文字过长。");

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
    int depth = 0;   ///< of all elements
    qint64 text = 0; ///< bytes since the last tag
    QString refusal;

    void Refuse(const char* why)
    {
        refusal = Message(why);
        XML_StopParser(parser, XML_FALSE);
    }
};

bool HasLongValue(const XML_Char** attributes)
{
    for (const XML_Char** at = attributes; *at; at += 2)
        if (strnlen(at[1], kMaxXmlText + 1) > kMaxXmlText)
            return true;
    return false;
}

void OnStart(void* data, const XML_Char* name, const XML_Char** attributes)
{
    auto& state = *static_cast<ParseState*>(data);
    state.text = 0;
    if (++state.depth > kMaxXmlDepth)
        return state.Refuse(QT_TRANSLATE_NOOP("OrvanData", "元素嵌套过深。"));
    if (HasLongValue(attributes))
        return state.Refuse(kTextTooLong);
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
    state.text = 0;
    if (state.open.back())
        state.open.back()->End();
    state.open.pop_back();
}

void OnText(void* data, const XML_Char*, int length)
{
    auto& state = *static_cast<ParseState*>(data);
    state.text += length;
    if (state.text > kMaxXmlText && state.refusal.isEmpty())
        state.Refuse(kTextTooLong);
}

void OnAside(void* data)
{
    const auto& state = *static_cast<ParseState*>(data);
    if (state.refusal.isEmpty() && state.open.back())
        state.open.back()->Aside();
}

void OnComment(void* data, const XML_Char*)
{
    OnAside(data);
}

void OnInstruction(void* data, const XML_Char*, const XML_Char*)
{
    OnAside(data);
}

void OnDoctype(void* data, const XML_Char*, const XML_Char*, const XML_Char*, int)
{
    static_cast<ParseState*>(data)->Refuse(QT_TRANSLATE_NOOP("OrvanData", "不接受文档类型声明。"));
}

/// In the user's language, which the parser does not speak.
const char* ReasonOf(XML_Error error)
{
    switch (error) {
    case XML_ERROR_NO_ELEMENTS:
    case XML_ERROR_UNCLOSED_TOKEN:
    case XML_ERROR_PARTIAL_CHAR:
        return QT_TRANSLATE_NOOP("OrvanData", "内容不完整");
    case XML_ERROR_TAG_MISMATCH:
        return QT_TRANSLATE_NOOP("OrvanData", "标签不匹配");
    case XML_ERROR_DUPLICATE_ATTRIBUTE:
        return QT_TRANSLATE_NOOP("OrvanData", "属性重复");
    case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
        return QT_TRANSLATE_NOOP("OrvanData", "根元素之后还有内容");
    case XML_ERROR_UNKNOWN_ENCODING:
    case XML_ERROR_INCORRECT_ENCODING:
        return QT_TRANSLATE_NOOP("OrvanData", "不支持该编码");
    case XML_ERROR_UNDEFINED_ENTITY:
    case XML_ERROR_BAD_CHAR_REF:
        return QT_TRANSLATE_NOOP("OrvanData", "引用无效");
    case XML_ERROR_NO_MEMORY:
        return QT_TRANSLATE_NOOP("OrvanData", "内存不足");
    default:
        return QT_TRANSLATE_NOOP("OrvanData", "语法错误");
    }
}

QString ParserError(const ParseState& state)
{
    if (!state.refusal.isEmpty())
        return state.refusal;
    return Message(QT_TRANSLATE_NOOP("OrvanData", "不是有效的XML（第%1行）：%2。"))
        .arg(QString::number(XML_GetCurrentLineNumber(state.parser)),
             Message(ReasonOf(XML_GetErrorCode(state.parser))));
}

bool FeedAll(QIODevice& source, ParseState& state, QString* error)
{
    XmlCleaner cleaner;
    XmlTagGuard guard;
    QByteArray raw;
    QByteArray clean;
    qint64 total = 0;
    qint64 fed = 0;
    for (;;) {
        // The parser looks at an unfinished tag anew with every chunk, so chunks grow with it.
        const qint64 held = fed - std::max<qint64>(XML_GetCurrentByteIndex(state.parser), 0);
        raw.resize(static_cast<int>(std::clamp(held, kChunk, kMaxChunk)));
        const qint64 got = source.read(raw.data(), raw.size());
        if (got < 0) {
            *error = Message(QT_TRANSLATE_NOOP("OrvanData", "文件无法读取。"));
            return false;
        }
        total += got;
        if (total > kMaxXmlBytes) {
            *error = Message(QT_TRANSLATE_NOOP("OrvanData", "文件过大。"));
            return false;
        }
        clean.resize(0);
        cleaner.Take(raw.constData(), got, clean);
        if (got == 0)
            cleaner.Finish(clean);
        if (!guard.Accepts(clean)) {
            *error = Message(QT_TRANSLATE_NOOP("OrvanData", "元素的属性过多。"));
            return false;
        }
        fed += clean.size();
        if (XML_Parse(state.parser, clean.constData(), clean.size(), got == 0) == XML_STATUS_ERROR) {
            *error = ParserError(state);
            return false;
        }
        *error = state.open.front()->GetRefusal();
        if (got == 0 || !error->isEmpty())
            return error->isEmpty();
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
    XML_SetCharacterDataHandler(state.parser, OnText);
    XML_SetCommentHandler(state.parser, OnComment);
    XML_SetProcessingInstructionHandler(state.parser, OnInstruction);
    XML_SetStartCdataSectionHandler(state.parser, OnAside);
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
