#include "formats/samplexml.h"
#include "layout/tile.h"
#include "layout/tilegroup.h"
#include "monitor/monitordata.h"
#include "support/projecttest.h"
#include "support/wallbuilder.h"

namespace {

const QUuid kLeft("{c95ad16b-6333-4764-bb20-9ee65602cbb4}"_s);
const QUuid kRight("{0b6a8f0e-27a5-4c57-8f3c-6f3d1a4e9b21}"_s);

/// The numbers of children are needed to reach them; a place says itself which port it is.
const QRegularExpression kStructure("^((Sender|SenderGroup|Port|Tile|Group|Item)?Count|PortIndex)$"_s);

std::string RotationRow(const SRotateParam& r)
{
    return Row(r.rotated, r.showCenter, r.centerX, r.centerY, r.leftTopX, r.leftTopY, r.angle, r.width,
               r.height)
           + '\n';
}

std::string SenderRow(const CSender& s)
{
    const QRect area = s.GetMonitorRenderArea();
    const QPoint offset = s.GetMonitorRcvOffsetPt();
    return Row(s.GetId(), s.GetSenderName(), s.GetBelongGroup(), s.IsPrintNameEnable(), s.GetPrintName(),
               s.IsBKImgShow(), s.GetBKImgAlpha(), s.IsBKImgStretch(), s.GetOffset().width(),
               s.GetOffset().height(), s.GetPortCount(), s.GetRecentPortIndex(), s.GetCanvasSize().width(),
               s.GetCanvasSize().height(), s.GetSignalFreq(), s.GetColorDepth(), area.x(), area.y(),
               area.width(), area.height(), s.GetMonitorRenderRelativePos(), offset.x(), offset.y(),
               static_cast<unsigned>(s.GetNetSenderIP()))
           + '\n';
}

std::string PortRow(const CPort& p)
{
    return Row(p.GetSenderId(), p.GetPortIndex(), p.IsBackupDest(), p.GetBackupSrcSenderId(),
               p.GetBackupSrcPortIndex(), static_cast<unsigned>(p.GetBackupSrcIP()), p.IsVisible(),
               p.IsFlagLock(), p.GetPortColor().name(QColor::HexArgb))
           + '\n';
}

std::string TileRow(const CTile& t)
{
    std::string row =
        Row(t.GetSenderId(), t.GetPortIndex(), t.GetConnectionIndex(), t.GetBeginRcvCnnt(),
            t.GetType().ToString(), t.GetGroupId(), t.GetX(), t.GetY(), t.GetWidth(), t.GetHeight(),
            t.IsMultiRcvTile(), t.IsMultiFixedLine(), t.GetMultiRcvsSize().width(),
            t.GetMultiRcvsSize().height(), t.IsMultiRcvsOrdered());
    for (int i = 0; i < kMaxReceiversInTile; ++i)
        row += Row(t.GetMultiRcvsLineCode(i));
    return row + RotationRow(t.GetRotateRecord());
}

std::string SenderRows(CSender& sender)
{
    std::string rows = SenderRow(sender);
    for (int p = 0; p < sender.GetPortCount(); ++p) {
        CPort& port = *sender.GetPort(p);
        rows += PortRow(port);
        for (int i = 0; i < TilesOf(port).GetCount(); ++i)
            rows += TileRow(*TilesOf(port).GetTile(i));
        QMap<QUuid, CTileGroup*> groups;
        GroupsOf(port).GetGroupListRecursive(groups);
        for (const CTileGroup* group : groups)
            rows += Row(group->GetID(), group->GetParentGroupID()) + RotationRow(*group->GetRotateParam());
    }
    return rows;
}

std::string MonitorRows()
{
    const CMonitorInterfaceData data = GetMonitorData()->GetInterfaceData();
    const SSenderSetting& s = data.GetSenderSetting();
    std::string rows = Row(data.GetIntervalTime(), s.videoUnmatch, s.freeze, s.blackout, s.brightnessZero);
    for (const SVideoInput& input : s.videoInputs)
        rows += Row(input.slot, input.sourceType, input.sourceIndex, input.enable);
    const SRecevierSetting& r = data.GetReceiverSetting();
    rows += '\n'
            + Row(r.temperatureEnable, r.temperatureLimit, r.humidityEnable, r.humidityLimit, r.smoke, r.fan,
                  r.cabinetDoor, r.cableDetection);
    for (const bool power : r.power)
        rows += Row(power);
    for (const SVoltageSetting& voltage : r.voltage)
        rows += Row(voltage.enable, voltage.minimum, voltage.maximum);
    const SEmailSetting& m = data.GetMailSetting();
    rows += '\n'
            + Row(m.enable, m.errorTimes, m.sslEncryption, m.serverPort, m.senderAddress, m.senderPassword,
                  m.server);
    for (const SMailReceiver& receiver : m.receivers)
        rows += Row(receiver.address, receiver.name);
    return rows + '\n' + Row(data.GetLineSetting().cableError, data.GetLineSetting().selfBackup) + '\n';
}

struct ProjectSampleTest : ProjectTest
{
    QByteArray Values()
    {
        QList<SSenderGroupInfo> groups;
        project.GetAllSenderGroup(groups);
        std::string rows = Row(project.GetDemoModeEnable(), project.GetDemoSenderType()) + '\n';
        for (const SSenderGroupInfo& group : groups)
            rows += Row(group.id, group.name, group.expanded) + '\n';
        for (const SRcvParamGamma& gamma : project.GetRcvParamGammas())
            rows += Row(gamma.type.ToString(), gamma.gamma) + '\n';
        const SPrintFormData& form = *project.GetPrintSetData();
        for (const SPrintLine* line :
             {&form.projectName, &form.designer, &form.designDate, &form.approver, &form.approveDate})
            rows += Row(line->enable, line->text);
        rows += '\n';
        for (CSender* sender : project.GetSenders())
            rows += SenderRows(*sender);
        rows += MonitorRows();
        for (const SParameterFileInfo& file : project.GetParameterFiles())
            rows += Row(file.name, file.type.ToString()) + '\n';
        return QByteArray::fromStdString(rows);
    }
};

} // namespace

TEST_F(ProjectSampleTest, DocumentIsReadByTheValueAndWrittenByTheByte)
{
    const QByteArray sample = FullSample("project.xml");
    ASSERT_TRUE(Load(SamplePath("full/project.xml")));
    EXPECT_EQ(Error(), QString());
    EXPECT_EQ(FirstDifference(Values(), Told("project.txt")), "");

    // The device is written, never read.
    for (int i = 0; i < 2; ++i) {
        project.GetSender(i)->SetProcessorType(17 + i);
        project.GetSender(i)->SetDeviceClass(2 + 2 * i);
        project.GetSender(i)->SetExportConfig(i == 0);
    }
    EXPECT_EQ(FirstDifference(Document(), sample), "");

    ASSERT_TRUE(Load(folder.Write("a.xml"_s, Hollow(sample, kStructure))));
    const QRegularExpression passedOver(kStructure.pattern() + "|^(Minimum|Current)Version$"_s);
    EXPECT_EQ(NamesWithoutOwnValue(sample, Document(), passedOver), "");
    // Monitoring keeps its defaults, a cabinet has one receiving card.
    EXPECT_EQ(
        ValuesBesideZero(Document(), passedOver),
        "BkPortIndex=-1 MailErrorTimes=3 MailSenderPort=465 MailSslEncryption=1 MultiOrdered=1 "
        "MultiRcvSizeX=1 MultiRcvSizeY=1 Name=param Name=param_2 ReceiverHumidity=1 ReceiverHumidityValue=85 "
        "ReceiverPower1=1 ReceiverPower2=1 ReceiverPower3=1 ReceiverPower4=1 ReceiverPower5=1 "
        "ReceiverTempEnable=1 ReceiverTempValue=60 ReceiverVoltage1Max=12 ReceiverVoltage1Min=5 "
        "ReceiverVoltage2Max=12 ReceiverVoltage2Min=5 ReceiverVoltage3Max=12 ReceiverVoltage3Min=5 "
        "ReceiverVoltage4Max=12 ReceiverVoltage4Min=5 RefreshDisTime=10 SelfBackup=1 SenderBlackout=1 "
        "SenderBrightneesZero=1 SenderFreeze=1 SenderVideoUnmatch=1");
}

TEST_F(ProjectSampleTest, LayoutFilesAreReadAndWrittenByTheByte)
{
    CSender& target = *project.NewSender();
    target.SetId(kLeft); // of the identity nothing comes from a file
    target.SetNetSenderIP(3232235786);
    target.SetBelongGroup(QUuid("{d3cbe907-e273-42d7-9f07-5f0244d56622}"_s));
    const QString path = folder.Path("a.xml"_s);

    ASSERT_TRUE(project.ImportSender(SamplePath("full/sender-layout.xml"), kLeft, false, true));
    ASSERT_TRUE(project.ExportSender(path, kLeft));
    EXPECT_EQ(FirstDifference(ReadFile(path), FullSample("sender-layout.xml")), "");

    target.GetPort(1)->GetPortProject()->ClearAllTiles();
    ASSERT_TRUE(project.ImportPort(SamplePath("full/port-layout.xml")));
    ASSERT_TRUE(project.ExportPort(path));
    EXPECT_EQ(FirstDifference(ReadFile(path), FullSample("port-layout.xml")), "");
}
