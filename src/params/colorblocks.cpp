#include "params/colorblocks.h"

#include "layout/sender.h"
#include "params/elementfields.h"
#include "params/elementnames.h"
#include "params/paramresult.h"

namespace params {

namespace {

struct BlockNames
{
    const char* enable; ///< of the whole sender; each entry has one of the same name
    const char* count;
    const char* entry; ///< and its number from 0 on
};

constexpr BlockNames kCubeNames{"ColorCubeEnable", "BoardCount", "ColorCubeBoard"};
// The count in lower case, unlike that of the cubes.
constexpr BlockNames kCurveNames{"ColorCurveEnable", "boardCount", "ColorCurveBoard"};
constexpr const char* kToAllSignal = "ToAllSignal";

template <class Entry>
void WriteBlock(ElementWriter& writer, const BlockNames& names, bool enable, bool allSignal,
                const QList<Entry>& entries)
{
    writer.Field(names.enable, enable);
    writer.Field(kToAllSignal, allSignal);
    writer.Field(names.count, entries.size());
    for (int i = 0; i < entries.size(); ++i)
        writer.Record(FieldName(names.entry) + i, entries[i]);
}

template <class Entry>
void ReadBlock(ElementReader& reader, const BlockNames& names, bool& enable, bool& allSignal,
               QList<Entry>& entries)
{
    reader.Field(names.enable, enable);
    reader.Field(kToAllSignal, allSignal);
    entries.clear();
    const int count = reader.Value<int>(names.count);
    const auto elements = reader.NumberedChildren(QLatin1String(names.entry), 0, count);
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
    writer.Group(kColorCubeRoot,
                 [&] { WriteBlock(writer, kCubeNames, data.cubeEnable, data.cubeAllSignal, data.cubes); });
    return kDone;
}

quint32 LoadColorCubeParam(QDomDocument&, const QDomElement& element, CSender* sender, bool perSource)
{
    if (!sender || element.isNull())
        return kFailed;
    SenderParamData& data = sender->Params();
    ElementReader reader(SelfOrChild(element, kColorCubeRoot), perSource);
    ReadBlock(reader, kCubeNames, data.cubeEnable, data.cubeAllSignal, data.cubes);
    return kDone;
}

quint32 SaveColorCurveParam(QDomDocument& document, QDomElement* parent, const CSender* sender,
                            bool perSource)
{
    if (!sender || !parent)
        return kFailed;
    const SenderParamData& data = sender->Params();
    ElementWriter writer(document, *parent, perSource);
    WriteBlock(writer, kCurveNames, data.curveEnable, data.curveAllSignal, data.curves);
    return kDone;
}

quint32 LoadColorCurveParam(QDomDocument&, const QDomElement& element, CSender* sender, bool perSource)
{
    if (!sender || element.isNull())
        return kFailed;
    SenderParamData& data = sender->Params();
    ElementReader reader(SelfOrChild(element, kColorCurveRoot), perSource);
    ReadBlock(reader, kCurveNames, data.curveEnable, data.curveAllSignal, data.curves);
    return kDone;
}

bool HasColorCurveParam(const QDomElement& element)
{
    const QDomElement block = SelfOrChild(element, kColorCurveRoot);
    return !block.firstChildElement(QLatin1String(kCurveNames.enable)).isNull()
           || !block.firstChildElement(QLatin1String(kCurveNames.count)).isNull();
}

} // namespace params
