#include "frame/runtimedata.h"
#include "layout/projectundoredo.h"
#include "monitor/monitordata.h"
#include "products/productdirectoryset.h"
#include "project/parameterwork.h"
#include "settings/configdata.h"
#include "settings/constantdata.h"
#include "support/messagerecorder.h"
#include "support/projecttest.h"
#include "support/wallbuilder.h"

#include <QFile>

#include <functional>

namespace {

struct ProjectDataTest : ProjectTest
{
    void AddSenders(int count)
    {
        for (int i = 0; i < count; ++i)
            project.NewSender();
    }

    QByteArray Image(int sender) { return ReadFile(CConstantData::GetSenderBKImgName(sender, true)); }

    SMD5 AddProduct(const QString& name, const QByteArray& content)
    {
        const QString path = WriteFile(CProductDirectorySet::GetRootDir() + name + ".rcvbp"_s, content);
        GetRuntimeData()->GetProductDirectorySet()->LoadProductInfo();
        return CConstantData::GetMD5FromFile(path);
    }

    MessageRecorder boxes;
};

} // namespace

TEST_F(ProjectDataTest, NamelessSendersShowTheirNumber)
{
    AddSenders(3);
    project.GetSender(0)->SetSenderName("A"_s);
    EXPECT_EQ(project.GetShowSenderName(2, true), "Processor 3"_s);
    EXPECT_EQ(project.GetShowSenderName(2, false), "Processor"_s);
    EXPECT_EQ(project.GetShowSenderName(3, true), QString());
    EXPECT_EQ(project.GetSenderName(0) + project.GetSenderName(3), "A"_s);
    EXPECT_EQ(project.GetPortDescription(0, 0), "主控 1(A),输出口 1 "_s);
    EXPECT_EQ(project.GetPortDescription(1, 159), "主控 2(Processor 2),输出口 160 "_s);
    for (const auto& [sender, port] : {std::pair(3, 0), std::pair(0, -1), std::pair(0, 160)})
        EXPECT_EQ(project.GetPortDescription(sender, port), QString()) << sender << ' ' << port;
}

TEST_F(ProjectDataTest, DeletionAsksAndRefusesAsTheBackupsAndLocksSay)
{
    AddSenders(1);
    EXPECT_FALSE(project.DeleteSender(0, true, false, false, nullptr)) << "the last sender stays";
    EXPECT_TRUE(boxes.texts.isEmpty());

    AddSenders(2);
    project.GetSender(1)->GetPort(2)->SetBeBackupDest(project.GetSender(0)->GetId(), 0);
    EXPECT_FALSE(project.DeleteSenderBefore(1, false, nullptr));
    EXPECT_FALSE(project.DeleteSenderBefore(0, false, nullptr));
    project.GetSender(2)->GetPort(0)->SetFlagLock(true);
    EXPECT_FALSE(project.DeleteSenderBefore(2, false, nullptr));
    project.GetSender(2)->GetPort(0)->SetFlagLock(false);
    EXPECT_TRUE(project.DeleteSenderBefore(2, false, nullptr));
    EXPECT_FALSE(project.DeleteSenderBefore(2, true, nullptr));
    EXPECT_EQ(
        boxes.texts,
        QStringList({"选择主控为备份主控，请先取消备份。"_s, "选择的主控存在备份主控，请先取消备份。"_s,
                     "主控存在输出口被锁住，您确定要删除选择的主控吗？"_s, "您确定要删除选择的主控吗？"_s}));
    boxes.answer = QMessageBox::Yes;
    EXPECT_TRUE(project.DeleteSender(2, true, false, true, nullptr));
    EXPECT_EQ(project.GetCurSenderIndex(), 1);
    EXPECT_FALSE(project.DeleteSender(2, false, false, false, nullptr)) << "no such sender";
}

TEST_F(ProjectDataTest, CurrentSenderIsOneThatIsThereOrNone)
{
    EXPECT_EQ(project.GetCurSenderIndexForRtCnnt(), 0);
    EXPECT_EQ(project.GetCurPortIndex(), -1);
    const int removals[][4] = {{3, 0, 0, 0}, {3, 1, 0, 0}, {3, 1, 1, 1}, {3, 2, 2, 1}, {1, 0, 0, -1}};
    for (const auto& [count, current, removed, left] : removals) {
        project.DeleteAllSender();
        AddSenders(count);
        for (const int index : {current, count, -1})
            project.SetCurrentSender(index);
        EXPECT_EQ(project.GetCurSenderIndexForRtCnnt(), current);
        project.DeleteSender(project.GetSender(removed)->GetId());
        EXPECT_EQ(project.GetCurSenderIndex(), left) << count << current << removed;
    }
    const int choices[][3] = {{1, true, 0}, {0, true, 0}, {1, false, 1}, {3, false, 2}};
    for (const auto& [deleted, previous, chosen] : choices) {
        project.SetToDefault();
        AddSenders(4);
        ASSERT_TRUE(project.DeleteSender(deleted, false, true, previous, nullptr));
        EXPECT_EQ(project.GetCurSenderIndex(), chosen) << deleted << previous;
        EXPECT_EQ(GetRuntimeData()->GetCurSelectNode(), chosen);
    }
}

TEST_F(ProjectDataTest, CopyHoldsAllAndADefaultProjectNothing)
{
    ASSERT_TRUE(Load(SamplePath("full/project.xml")));
    project.SetCurrentSender(1);
    project.SetCurProjectName("b"_s);
    const QByteArray full = Document();
    const CProjectData copy(project);
    EXPECT_FALSE(Load(folder.Path("missing"_s)));
    project.SetToDefault();
    EXPECT_EQ(Error() + project.GetCurProjectName(), QString());
    EXPECT_TRUE(project.GetID() != copy.GetID() && !project.GetID().isNull()
                && !CProjectData().GetID().isNull());
    EXPECT_NE(Document(), full);
    project.NewSender();
    project = copy;
    project.CopyProject(project);
    EXPECT_EQ(Document(), full);
    EXPECT_TRUE(project.GetID() == copy.GetID() && project.GetCurSenderIndex() == 1);
}

TEST_F(ProjectDataTest, SelectionGoesOverAllPortsOfAllSenders)
{
    AddSenders(2);
    GetConfigData()->SetEnableRotate(true);
    CPort& last = *project.GetSender(1)->GetPort(159);
    MakeWall(last, 2, 1);
    CTile* tile = TilesOf(last).GetTile(1);
    project.CancelAllTileSelect(InterfaceDesign);
    EXPECT_FALSE(tile->IsSelected(InterfaceDesign));
    EXPECT_FALSE(GroupsOf(last).GetDirectGroupByDirIndex(0)->IsSelected(InterfaceDesign));
    project.SelectAllTile();
    EXPECT_TRUE(tile->IsSelected(InterfaceDesign) && !project.HasTileRotated());
    SRotateParam turned;
    turned.angle = 30;
    tile->SetTileRotateParam(&turned);
    EXPECT_TRUE(project.HasTileRotated());
}

TEST_F(ProjectDataTest, ImagesFollowTheirSendersNumbers)
{
    AddSenders(4);
    for (int i = 1; i < 5; ++i)
        WriteFile(CConstantData::GetSenderBKImgName(i, true), QByteArray::number(i));
    ASSERT_TRUE(project.DeleteSender(1, false, false, false, nullptr));
    EXPECT_EQ(Image(1), "2");
    EXPECT_EQ(Image(3), "");
    EXPECT_EQ(Image(4), "4") << "of no sender";
    ASSERT_TRUE(project.DeleteSender(1, false, true, false, nullptr));
    EXPECT_EQ(Image(1), "") << "the deleted sender's image goes in any case";
    EXPECT_EQ(Image(2), "3");
}

TEST_F(ProjectDataTest, TheLastSenderLeftBeginsAtTheCanvas)
{
    AddSenders(3);
    project.GetSender(2)->SetOffset(QSize(5, 6));
    for (const QSize& offset : {QSize(5, 6), QSize(0, 0)}) {
        ASSERT_TRUE(project.DeleteSender(0, false, true, false, nullptr));
        EXPECT_EQ(project.GetSenders().last()->GetOffset(), offset);
    }
}

TEST_F(ProjectDataTest, RemovalKeepsTheCurrentSenderAndReleasesTheHistory)
{
    AddSenders(3);
    CProjectUndoRedo* history = GetRuntimeData()->GetProjectUndoRedo();
    history->Init();
    project.SetCurrentSender(2);
    CSender* current = project.GetCurrentSender();
    const QUuid first = project.GetSender(0)->GetId();
    project.DeleteSender(first);
    EXPECT_EQ(project.GetCurrentSender(), current);
    EXPECT_EQ(history->GetSenderUndoRedoFromID(first), nullptr);
    EXPECT_TRUE(history->IsModidfied());

    history->Init();
    CProjectData copy(project);
    copy.DeleteAllSender();
    EXPECT_FALSE(history->IsModidfied()) << "copies do not touch the open document's history";
    const QUuid last = current->GetId();
    EXPECT_NE(history->GetSenderUndoRedoFromID(last), nullptr);

    QDomElement none = QDomDocument().createElement("SenderLayout"_s);
    project.ReadSender(QDomDocument(), &none, version, nullptr);
    EXPECT_EQ(history->GetSenderUndoRedoFromID(last), nullptr);
    EXPECT_TRUE(history->IsModidfied());
}

TEST_F(ProjectDataTest, SenderGroupsMarkTheProjectModified)
{
    CProjectUndoRedo* history = GetRuntimeData()->GetProjectUndoRedo();
    QUuid group;
    const std::function<void()> changes[] = {[&] { group = project.AddGroupInfo("a"_s); },
                                             [&] { project.SetGroupName(group, "b"_s); },
                                             [&] { project.DeleteSenderGroup(group); }};
    QStringList names = {"a"_s, "b"_s, QString()};
    for (const auto& change : changes) {
        history->Init();
        change();
        EXPECT_TRUE(history->IsModidfied()) << (&change - changes);
        QList<SSenderGroupInfo> groups;
        project.GetAllSenderGroup(groups);
        EXPECT_EQ(groups.value(0).name, names.takeFirst());
    }
    history->Init();
    project.SetGroupName(group, "c"_s);
    project.DeleteSenderGroup(group);
    EXPECT_FALSE(history->IsModidfied()) << "there is no such group";
}

TEST_F(ProjectDataTest, SenderGroupsKnowTheirSenders)
{
    AddSenders(3);
    const QUuid group = project.AddGroupInfo("a"_s);
    const QUuid other = project.AddGroupInfo("b"_s);
    project.SetGroupExpand(other, false);
    EXPECT_TRUE(project.GetGroupExpand(group) && !project.GetGroupExpand(other));
    for (int i = 0; i < 3; ++i)
        project.GetSender(i)->SetBelongGroup(i == 0 ? other : group);
    QList<QUuid> senders;
    for (const QUuid& asked : {group, other})
        project.GetSendersInGroup(asked, senders);
    EXPECT_EQ(senders, QList<QUuid>{project.GetSender(0)->GetId()});
    EXPECT_EQ(project.GetGroupIDBySenderIndex(1), group);
    project.DeleteSenderGroup(group);
    EXPECT_EQ(project.GetSender(0)->GetBelongGroup(), other);
    project.GetSender(1)->SetBelongGroup(group);
    EXPECT_TRUE(project.GetGroupIDBySenderIndex(1).isNull() && project.GetGroupIDBySenderIndex(3).isNull());
}

TEST_F(ProjectDataTest, BackupsAreFoundByIdAndByAddressButNotWithinASender)
{
    AddSenders(3);
    project.GetSender(0)->SetNetSenderIP(1);
    project.GetSender(1)->GetPort(0)->SetBeBackupDestIP(1, 3);
    project.GetSender(2)->GetPort(1)->SetBeBackupDest(project.GetSender(2)->GetId(), 0);
    EXPECT_FALSE(project.IsSenderSelfPortBackup(0) || project.IsSenderSelfPortBackup(1));
    int other = -1;
    EXPECT_TRUE(project.IsSenderBackupDest(1, &other));
    EXPECT_EQ(other, 0);
    EXPECT_TRUE(project.IsSenderBackupSource(0, &other));
    EXPECT_EQ(other, 1);
    EXPECT_FALSE(project.IsSenderBackupDest(2, nullptr) || project.IsSenderBackupSource(2, nullptr));
    EXPECT_TRUE(project.IsSenderSelfPortBackup(2));

    int sender = 0;
    int port = 0;
    bool found = false;
    EXPECT_TRUE(project.MatchSrcBackup(1, 0, sender, port, found));
    EXPECT_EQ(std::make_pair(sender, port), std::make_pair(0, 3));
    project.GetSender(1)->GetPort(1)->SetBeBackupDest(QUuid::createUuid(), 2);
    EXPECT_FALSE(project.MatchSrcBackup(1, 1, sender, port, found));
    EXPECT_EQ(std::make_pair(sender, port), std::make_pair(-1, -1));

    project.GetSender(1)->GetPort(0)->CancelBackupDest();
    project.GetSender(1)->GetPort(1)->CancelBackupDest();
    project.GetSender(1)->GetPort(project.GetSender(1)->GetPortCount())->SetBeBackupDestIP(1, 0);
    project.GetSender(0)->GetPort(project.GetSender(0)->GetPortCount())->SetBeBackupDestIP(1, 0);
    EXPECT_FALSE(project.IsSenderBackupDest(1, nullptr) || project.IsSenderBackupSource(0, nullptr)
                 || project.IsSenderSelfPortBackup(0))
        << "only the ports in use count";
    project.GetSender(0)->GetPort(3)->SetBeBackupDestIP(1, 0);
    EXPECT_TRUE(project.IsSenderSelfPortBackup(0));
    EXPECT_FALSE(project.IsSenderBackupDest(0, nullptr) || project.IsSenderBackupSource(0, nullptr));
    project.GetSender(0)->GetPort(2)->SetBeBackupDestIP(9, 0);
    EXPECT_TRUE(project.IsSenderBackupDest(0, &other));
    EXPECT_EQ(other, -1) << "of a sender that is not in the project";
    project.GetSender(2)->SetNetSenderIP(9);
    EXPECT_TRUE(project.IsSenderBackupDest(0, &other) && other == 2);
    for (const int none : {-1, 3})
        EXPECT_FALSE(project.IsSenderBackupDest(none, nullptr) || project.IsSenderBackupSource(none, nullptr)
                     || project.IsSenderSelfPortBackup(none));
    for (const auto& [noSender, noPort] : {std::pair(3, 0), std::pair(0, kMaxPorts)}) {
        EXPECT_FALSE(project.MatchSrcBackup(noSender, noPort, sender, port, found) || found);
        EXPECT_EQ(std::make_pair(sender, port), std::make_pair(-1, -1));
    }
    project.GetSender(1)->GetPort(0)->SetBeBackupDest(QUuid(), 0);
    EXPECT_FALSE(project.IsSenderBackupDest(1, nullptr)) << "of none";
}

TEST_F(ProjectDataTest, NetworkUpdateAppendsWhatIsNewAndDeletesNothing)
{
    AddSenders(1);
    project.GetSender(0)->SetPortCount(8);
    project.GetSender(0)->SetCanvasSize(QSize(640, 480));
    project.GetSender(0)->SetNetSenderIP(5);
    EXPECT_FALSE(project.UpdateProjectSenders({6}, {})) << "only in the strategy that follows the network";
    GetConfigData()->SetDetectStrategy(2);
    const QUuid group = project.AddGroupInfo("new"_s);
    GetRuntimeData()->SetAddGroupId(group);
    EXPECT_TRUE(project.UpdateProjectSenders({6, 0, 5, 6}, {7}));
    ASSERT_EQ(project.GetSenderCount(), 3);
    const CSender* added = project.GetSender(2);
    EXPECT_EQ(added->GetNetSenderIP(), 7u);
    EXPECT_EQ(added->GetPortCount(), 8);
    EXPECT_EQ(added->GetCanvasSize(), QSize(640, 480));
    EXPECT_EQ(added->GetOffset(), QSize(0, 0));
    EXPECT_EQ(added->GetBelongGroup(), group);
    EXPECT_FALSE(project.UpdateProjectSenders({5, 6}, {7}));

    project.DeleteSenderGroup(group);
    EXPECT_TRUE(added->GetBelongGroup().isNull());
}

TEST_F(ProjectDataTest, ParameterFilesAreKeptUnderSafeNamesOnceAType)
{
    const SMD5 type = AddProduct("a"_s, "cabinet a");
    const SMD5 other = AddProduct("b"_s, "cabinet b");
    project.AddParameterFileInfo("../a:b"_s, type);
    project.AddParameterFileInfo("again"_s, type);
    project.AddParameterFileInfo("_A_b"_s, other);
    ASSERT_EQ(project.GetParameterFiles().size(), 2);
    EXPECT_EQ(project.GetParameterFiles()[0].name, "_a_b"_s);
    EXPECT_EQ(project.GetParameterFiles()[1].name, "_A_b_2"_s);
    EXPECT_EQ(ReadFile(parameterwork::PathOf("_a_b"_s)), "cabinet a");
    project.ExchangeNameByMD5(other, "second"_s);
    EXPECT_TRUE(project.GetParameterFiles()[0].name == "_a_b"_s
                && project.GetParameterFiles()[1].name == "second"_s);

    WriteFile(parameterwork::PathOf("c"_s), "of another project");
    for (int again = 0; again < 2; ++again)
        project.ExchangeNameByMD5(type, "c"_s);
    const SMD5 none = SMD5::FromString(QString(32, QLatin1Char('c')));
    project.ExchangeNameByMD5(none, "d"_s);
    project.DeleteParameterFileInfo(none);
    EXPECT_EQ(project.GetParameterFiles()[0].name, "c"_s);
    EXPECT_EQ(ReadFile(parameterwork::PathOf("c"_s)), "cabinet a");
    EXPECT_FALSE(QFile::exists(parameterwork::PathOf("_a_b"_s)));
    project.DeleteParameterFileInfo(type);
    EXPECT_FALSE(QFile::exists(parameterwork::PathOf("c"_s)));
    EXPECT_EQ(project.GetParameterFiles().size(), 1);
}

TEST_F(ProjectDataTest, ListsInTextsComeBackAndLoseOnlyTheirSeparators)
{
    CMonitorInterfaceData data;
    SEmailSetting mail;
    mail.receivers = {{"a@x.test"_s, "A;B,C"_s}, {"b@x.test"_s, {}}};
    data.SetMailSetting(mail);
    GetMonitorData()->SetInterfaceData(data);
    const QString text = project.GetMailReceiversString();
    EXPECT_EQ(text, "a@x.test,A B C;b@x.test,;"_s);
    SEmailSetting read;
    for (int again = 0; again < 2; ++again) // in place of those before
        CProjectData::SetReceiversFromString(read, text);
    ASSERT_EQ(read.receivers.size(), 2);
    EXPECT_EQ(read.receivers[0].name, "A B C"_s);
    CProjectData::SetReceiversFromString(read, "c@x.test"_s);
    EXPECT_EQ(read.receivers[0].address + read.receivers[0].name, "c@x.test"_s) << "no name";

    SSenderSetting setting;
    for (int again = 0; again < 2; ++again)
        project.SetVideoInfoFromString(setting, "1,2,3,1;4,5,6,0;"_s);
    Document();
    project.SetVideoInputs({});
    ASSERT_TRUE(Load(folder.Path("document.prj"_s)));
    EXPECT_EQ(project.GetVideoInfoString(), "1,2,3,1;4,5,6,0;"_s) << "the project file holds them";
    EXPECT_EQ(CProjectData::GetIntFromOctString("1.2.3.4"_s), 0x01020304U);
    EXPECT_EQ(CProjectData::GetColorStr(-5) + CProjectData::GetColorStr(3) + CProjectData::GetColorStr(4),
              "ColorRedColorWrite"_s);
}

TEST_F(ProjectDataTest, GammaOfATypeIsSetOnceAndDeletedAlone)
{
    const SMD5 a = SMD5::FromString(QString(32, QLatin1Char('a')));
    const SMD5 b = SMD5::FromString(QString(32, QLatin1Char('b')));
    project.SetRcvParamGamma(a, 1);
    EXPECT_FALSE(project.GetRcvParamGamma(a, nullptr)) << "setting adds none";
    for (const auto& [type, gamma] : {std::pair(a, 2.F), std::pair(b, 3.F), std::pair(a, 4.F)})
        project.AddRcvParamGamma(type, gamma);
    ASSERT_EQ(project.GetRcvParamGammas().size(), 2);
    float gamma = 0;
    EXPECT_TRUE(project.GetRcvParamGamma(a, &gamma));
    EXPECT_EQ(gamma, 4);
    project.DeleteRcvParamGamma(a);
    EXPECT_EQ(project.GetRcvParamGammas()[0].gamma, 3);
}
