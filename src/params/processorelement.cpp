#include "params/processorelement.h"

#include "layout/sender.h"
#include "params/colorblocks.h"
#include "params/deviceblocks.h"
#include "params/inputblock.h"
#include "params/outputblock.h"
#include "params/paramresult.h"
#include "params/sharedblocks.h"

namespace params {

namespace {

constexpr const char* kOutputRoot = "OutputParamsXmlRoot";
constexpr const char* kGroupRoot = "groupParamRoot";
constexpr const char* kGroupCount = "groupParamGroupVaildCount";
constexpr const char* kGroup = "groupParamRootBase";
constexpr const char* kInputRoot = "inputParamXmlRoot";
constexpr const char* kDeviceSetRoot = "DeviceSetParamsXmlRoot";
constexpr const char* kDeviceOtherRoot = "DeviceOtherParamsXmlRoot";
constexpr const char* kHotBackup = "hotbackup"; ///< begins the names of all values of a pair
constexpr const char* kHotBackupCount = "hotbackupCount";

QDomElement Appended(QDomDocument& document, const QDomElement& parent, const FieldName& name)
{
    QDomElement child = document.createElement(name.Text());
    QDomElement(parent).appendChild(child);
    return child;
}

template <class Fields, class Data> void DescribeDeviceOther(Fields& f, Data& data)
{
    f.Field("DeviceOtherParamVideoAbnormalColseOut", data.signalAbnormal);
}

template <class Fields, class Data> void DescribeOther(Fields& f, Data& data)
{
    f.Group(kOtherRoot, [&] {
        f.Group(kAdvancedRoot, [&] {
            DescribeAdvanced(f, data);
            DescribeProcessorAdvanced(f, data);
        });
    });
}

void WriteHotBackup(ElementWriter& writer, const SInputVideoHotBackup& backup)
{
    SInputVideoHotBackup::Walk(writer, backup);
    writer.Field(kHotBackupCount, backup.pairs.size());
    for (int i = 0; i < backup.pairs.size(); ++i)
        SHotBackupPair::WalkNumbered(writer, i, backup.pairs[i]);
}

/// False when the element holds no hot backup.
bool ReadHotBackup(const QDomElement& element, CSender& sender)
{
    ElementReader reader(element);
    if (reader.Child(QLatin1String(kHotBackupEnable)).isNull()
        && reader.Child(QLatin1String(kHotBackupCount)).isNull())
        return false;
    SInputVideoHotBackup backup;
    SInputVideoHotBackup::Walk(reader, backup);
    const int count = reader.Value<int>(kHotBackupCount);
    const auto numbers = reader.ChildNumbers(QLatin1String(kHotBackup), 0, count);
    for (const int number : numbers) {
        SHotBackupPair pair;
        SHotBackupPair::WalkNumbered(reader, number, pair);
        backup.pairs.append(pair);
    }
    sender.SetHotBackupInfo(backup);
    return true;
}

void LoadGroups(QDomDocument& document, const QDomElement& element, CSender* sender)
{
    ElementReader reader(element);
    const int count = reader.Value<int>(kGroupCount);
    const auto groups = reader.NumberedChildren(QLatin1String(kGroup), 1, count);
    for (const auto& group : groups)
        LoadOneGroupParam(document, &group.second, group.first - 1, sender);
}

/// Loads the child when it is one of the blocks of a single-processor file.
void LoadBlock(QDomDocument& document, const QDomElement& child, CSender* sender)
{
    const QString name = child.tagName();
    if (name == QLatin1String(kOutputRoot))
        LoadOutputParam(document, &child, sender);
    else if (name == QLatin1String(kGroupRoot))
        LoadGroups(document, child, sender);
    else if (name == QLatin1String(kInputRoot))
        LoadInputParam(document, &child, sender);
    else if (name == QLatin1String(kDeviceSetRoot))
        LoadDeviceSetParam(document, &child, sender);
    else if (name == QLatin1String(kDeviceOtherRoot)) {
        ElementReader reader(child);
        DescribeDeviceOther(reader, sender->Params());
    }
}

/// What depends on features of the processor.
void LoadOptionalRows(QDomDocument& document, const QDomElement& element, CSender* sender)
{
    ElementReader reader(element);
    DescribeAudio(reader, sender->Params());
    LoadColorCubeParam(document, reader.Child(QLatin1String(kColorCubeRoot)), sender, true);
    if (HasColorCurveParam(element))
        LoadColorCurveParam(document, element, sender, true);
    LoadMultiParam(document, reader.Child(QLatin1String(kMultiRoot)), sender);
    Load3DParam(document, reader.Child(QLatin1String(k3DRoot)), sender);
    DescribeOther(reader, sender->Params());
    if (!ReadHotBackup(element, *sender))
        reader.Group(kOtherRoot, [&] { ReadHotBackup(reader.Child(QLatin1String(kAdvancedRoot)), *sender); });
}

/// The type of the element, else that of its basic block; when both are there both have to fit.
quint32 CheckType(const QDomElement& element, const CSender& sender)
{
    const quint32 own = CheckTypeElement(element, kSenderType, sender);
    if (own == kTypeDiffers)
        return own;
    const quint32 basic = CheckBasicInfo(SelfOrChild(element, kBasicRoot), sender);
    return basic == kTypeDiffers ? basic : qMin(own, basic);
}

} // namespace

quint32 WriteSingleProcessorParam(QDomDocument& document, QDomElement* element, const CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementWriter writer(document, *element);
    writer.Field("DeviceGuid", sender->GetId());
    writer.Field(kNetIp, static_cast<quint32>(sender->GetNetSenderIP()));
    writer.Field(kSenderType, sender->GetProcessorType());
    writer.Field(kDeviceClass, sender->GetDeviceClass());

    const auto appended = [&](const char* name) { return Appended(document, *element, name); };
    QDomElement block = appended(kBasicRoot);
    SaveBasicInfoParam(document, sender, &block);
    block = appended(kOutputRoot);
    SaveOutputParam(document, sender, &block);
    writer.Group(kGroupRoot, [&] { writer.Field(kGroupCount, 1); });
    block = Appended(document, element->lastChildElement(), FieldName(kGroup) + 1);
    SaveOneGroupParam(document, &block, 0, sender);
    block = appended(kInputRoot);
    SaveInputParam(document, &block, sender); // without inputs the element stays empty
    block = appended(kDeviceSetRoot);
    SaveDeviceSetParam(document, &block, sender);

    // What the getters give, where that depends on the device class.
    SenderParamData data = sender->Params();
    data.vSyncFreq = sender->GetVSyncFreq();
    data.blackoutFadeTime = sender->GetBlackoutFadeTime();
    writer.Group(kDeviceOtherRoot, [&] { DescribeDeviceOther(writer, data); });
    DescribeAudio(writer, data);
    SaveColorCubeParam(document, element, sender, true);
    SaveColorCurveParam(document, element, sender, true);
    SaveMultiParam(document, element, sender);
    Save3DParam(document, element, sender);
    DescribeOther(writer, data);
    WriteHotBackup(writer, data.hotBackup);
    return kDone;
}

quint32 ReadSingleProcessorParam(QDomDocument& document, const QDomElement* element, CSender* sender)
{
    if (!sender || !element || element->isNull())
        return kImportFailed;
    const quint32 result = CheckType(*element, *sender);
    if (result != kDone)
        return result;
    for (QDomElement child = element->firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        LoadBlock(document, child, sender);
    LoadOptionalRows(document, *element, sender);
    return kDone;
}

quint32 ImportProcessorBlocks(QDomDocument& document, const QDomElement& element, CSender* sender)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() != QLatin1String(kBasicRoot)) {
            LoadBlock(document, child, sender);
            continue;
        }
        const quint32 result = CheckBasicInfo(child, *sender);
        if (result != kDone)
            return result;
    }
    return kDone;
}

} // namespace params
