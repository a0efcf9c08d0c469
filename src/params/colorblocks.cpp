#include "params/colorblocks.h"

#include "layout/sender.h"
#include "params/elementfields.h"
#include "params/elementnames.h"
#include "params/paramresult.h"

namespace params {

namespace {

constexpr const char* kCubeEnable = "ColorCubeEnable";
constexpr const char* kCubeCount = "BoardCount";
constexpr const char* kCubeEntry = "ColorCubeBoard";
constexpr const char* kCurveEnable = "ColorCurveEnable";
constexpr const char* kCurveCount = "boardCount"; // in lower case, unlike that of the cubes
constexpr const char* kCurveEntry = "ColorCurveBoard";
constexpr const char* kToAllSignal = "ToAllSignal";

template <class Entry>
void WriteEntries(ElementWriter& writer, const char* countName, const char* name, const QList<Entry>& entries)
{
    writer.Field(countName, entries.size());
    for (int i = 0; i < entries.size(); ++i)
        writer.Record(FieldName(name) + i, entries[i]);
}

template <class Entry>
void ReadEntries(ElementReader& reader, const char* countName, const char* name, QList<Entry>& entries)
{
    entries.clear();
    const auto elements = reader.NumberedChildren(QLatin1String(name), 0, reader.Value<int>(countName));
    for (const auto& numbered : elements) {
        Entry entry;
        ElementReader fields(numbered.second, reader.WithSource());
        Entry::Walk(fields, entry);
        entries.append(entry);
    }
}

} // namespace

quint32 SaveColorCubeParam(QDomDocument& document, QDomElement* parent, const CSender* sender, bool perSource)
{
    if (!sender || !parent)
        return kFailed;
    const SenderParamData& data = sender->Params();
    ElementWriter writer(document, *parent, perSource);
    writer.Group(kColorCubeRoot, [&] {
        writer.Field(kCubeEnable, data.cubeEnable);
        writer.Field(kToAllSignal, data.cubeAllSignal);
        WriteEntries(writer, kCubeCount, kCubeEntry, data.cubes);
    });
    return kDone;
}

quint32 LoadColorCubeParam(QDomDocument&, const QDomElement& element, CSender* sender, bool perSource)
{
    if (!sender || element.isNull())
        return kFailed;
    SenderParamData& data = sender->Params();
    ElementReader reader(SelfOrChild(element, kColorCubeRoot), perSource);
    reader.Field(kCubeEnable, data.cubeEnable);
    reader.Field(kToAllSignal, data.cubeAllSignal);
    ReadEntries(reader, kCubeCount, kCubeEntry, data.cubes);
    return kDone;
}

quint32 SaveColorCurveParam(QDomDocument& document, QDomElement* parent, const CSender* sender,
                            bool perSource)
{
    if (!sender || !parent)
        return kFailed;
    const SenderParamData& data = sender->Params();
    ElementWriter writer(document, *parent, perSource);
    writer.Field(kCurveEnable, data.curveEnable);
    writer.Field(kToAllSignal, data.curveAllSignal);
    WriteEntries(writer, kCurveCount, kCurveEntry, data.curves);
    return kDone;
}

quint32 LoadColorCurveParam(QDomDocument&, const QDomElement& element, CSender* sender, bool perSource)
{
    if (!sender || element.isNull())
        return kFailed;
    SenderParamData& data = sender->Params();
    ElementReader reader(SelfOrChild(element, kColorCurveRoot), perSource);
    reader.Field(kCurveEnable, data.curveEnable);
    reader.Field(kToAllSignal, data.curveAllSignal);
    ReadEntries(reader, kCurveCount, kCurveEntry, data.curves);
    return kDone;
}

bool HasColorCurveParam(const QDomElement& element)
{
    const QDomElement block = SelfOrChild(element, kColorCurveRoot);
    return !block.firstChildElement(QLatin1String(kCurveEnable)).isNull()
           || !block.firstChildElement(QLatin1String(kCurveCount)).isNull();
}

} // namespace params
