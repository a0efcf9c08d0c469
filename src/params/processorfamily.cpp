#include "layout/sender.h"
#include "params/colorblocks.h"
#include "params/deviceblocks.h"
#include "params/inputblocks.h"
#include "params/outputblocks.h"
#include "params/paramfile.h"

namespace params {

constexpr const char* kHotBackupEnable = "outputOtherParamHotBackup";
constexpr const char* kHotBackupCount = "hotbackupCount";

/// Files set each name between the role of the input and the number of its pair.
template <class F>
void DescribeBackupSource(F& f, const std::string& role, int pair, Ref<F, SHotBackupSource> r)
{
    f.Field(FieldName(role + "slotNum") + pair, r.slotNum);
    f.Field(FieldName(role + "boardType") + pair, r.boardType);
    f.Field(FieldName(role + "boardIndex") + pair, r.boardIndex);
    f.Field(FieldName(role + "sourceType") + pair, r.sourceType);
    f.Field(FieldName(role + "sourceIndex") + pair, r.sourceIndex);
    f.Field(FieldName(role + "sourecTypeIndex") + pair, r.sourceTypeIndex);
    f.Field(FieldName(role + "cutID") + pair, r.cutId);
}

template <class F> void Describe(F& f, Ref<F, SInputVideoHotBackup> r)
{
    f.Field(kHotBackupEnable, r.enable);
    f.Flat(kHotBackupCount, "hotbackup", r.pairs, [&f](int number, auto& pair) {
        f.Field(FieldName("hotbackupId") + number, pair.id);
        DescribeBackupSource(f, "hotbackupMain", number, pair.main);
        DescribeBackupSource(f, "hotbackupBackup", number, pair.backup);
    });
}

namespace {

template <class F> void DescribeGroups(F& f, Ref<F, CSender> sender)
{
    int count = 1;
    f.Field("groupParamGroupVaildCount", count);
    f.EachNumbered("groupParamRootBase", 1, count,
                   [&](int number) { DescribeOutputGroup(f, number - 1, sender); });
}

template <class F> void DescribeDeviceOther(F& f, Ref<F, CSender> sender)
{
    f.Field("DeviceOtherParamVideoAbnormalColseOut", sender.Params().signalAbnormal);
}

/// The blocks that a file of a single processor is read for too.
template <class F> struct Block
{
    const char* root;
    void (*describe)(F&, Ref<F, CSender>);
};

template <class F>
constexpr Block<F> kBlocks[] = {{"OutputParamsXmlRoot", DescribeOutput<F>},
                                {"groupParamRoot", DescribeGroups<F>},
                                {"inputParamXmlRoot", DescribeInputs<F>},
                                {"DeviceSetParamsXmlRoot", DescribeDeviceSet<F>},
                                {"DeviceOtherParamsXmlRoot", DescribeDeviceOther<F>}};

void ReadBlock(const QString& root, ElementReader& reader, CSender& sender)
{
    for (const auto& block : kBlocks<ElementReader>)
        if (root == QLatin1String(block.root))
            block.describe(reader, sender);
}

template <class F, class Data> void DescribeHotBackup(F& f, Data& data)
{
    if (f.Has(kHotBackupEnable) || f.Has(kHotBackupCount))
        f.Whole(data.hotBackup);
}

/// What depends on features of the processor.
template <class F, class Data> void DescribeOptionalRows(F& f, Data& data)
{
    DescribeAudio(f, data);
    f.Group(kColorCubeRoot, [&] { DescribeColorCubes(f, data); });
    f.OwnOrGroup(kColorCurveRoot, [&] {
        if (f.Has(kColorCurveEnable) || f.Has(kColorCurveCount))
            DescribeColorCurves(f, data);
    });
    f.Record(kMultiRoot, data.multi);
    f.Record(k3DRoot, data.stereo);
    f.Group(kOtherRoot, [&] {
        f.Group(kAdvancedRoot, [&] {
            DescribeAdvanced(f, data);
            DescribeProcessorAdvanced(f, data);
            if constexpr (F::kReads)
                DescribeHotBackup(f, data); // the one below wins
        });
    });
    DescribeHotBackup(f, data);
}

void Write(ElementWriter& writer, const CSender& sender)
{
    writer.Field("DeviceGuid", sender.GetId());
    writer.Field(kNetIp, static_cast<quint32>(sender.GetNetSenderIP()));
    writer.Field(kSenderType, sender.GetProcessorType());
    writer.Field(kDeviceClass, sender.GetDeviceClass());
    writer.Group(kBasicRoot, [&] { WriteBasicInfo(writer, sender); });
    for (const auto& block : kBlocks<ElementWriter>)
        writer.Group(block.root, [&] { block.describe(writer, sender); });

    // What the getters give, where that depends on the device class.
    SenderParamData shown = sender.Params();
    shown.vSyncFreq = sender.GetVSyncFreq();
    shown.blackoutFadeTime = sender.GetBlackoutFadeTime();
    DescribeOptionalRows(writer, shown);
}

/// The type of the element, else that of its basic block; when both are there both have to fit.
quint32 CheckTypes(ElementReader& reader, const CSender& sender)
{
    const quint32 own = CheckType(reader, kSenderType, sender);
    if (own == kTypeDiffers)
        return own;
    quint32 basic = kImportFailed;
    reader.OwnOrGroup(kBasicRoot, [&] { basic = CheckType(reader, kDeviceType, sender); });
    return basic == kTypeDiffers ? basic : qMin(own, basic);
}

quint32 Read(ElementReader& reader, CSender& sender)
{
    const quint32 result = CheckTypes(reader, sender);
    if (result != kDone)
        return result;
    reader.EachChild([&](const QString& name) { ReadBlock(name, reader, sender); });
    DescribeOptionalRows(reader, sender.Params());
    return kDone;
}

/// The blocks in the order of the document, up to a basic block that does not fit.
Outcome ReadAlone(ElementReader& reader, CSender& sender)
{
    quint32 result = kDone;
    reader.EachChild([&](const QString& name) {
        if (result == kDone && name == QLatin1String(kBasicRoot))
            result = CheckType(reader, kDeviceType, sender);
        else if (result == kDone)
            ReadBlock(name, reader, sender);
    });
    // The code does not say which; the reason is in the message.
    Outcome outcome = Told(result);
    outcome.code = result == kDone ? kDone : kFailed;
    return outcome;
}

} // namespace

const Family kProcessorFamily{"DeviceParams", "UTF-8", {"ParamFileMainVersion", "DeviceReserveFlag"},
                              Write,          Read,    ReadAlone};

} // namespace params
