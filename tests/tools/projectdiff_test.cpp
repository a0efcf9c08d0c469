#include "tools/toolsproject.h"

#include <orvantools/projectdiff.h>

#include <string>
#include <vector>

namespace {

/// The one sender of a wall before and after: 2 x 2 cabinets on each of two ports, numbered there and back in
/// rows, each port's as a group.
struct Edit
{
    const char* name;
    void (*edit)(CSender& before, CSender& after);
    std::vector<std::string> expected;
};

CTile& At(CSender& sender, int cabinet, int port = 0)
{
    return *sender.GetPort(port)->GetTileSet().GetTile(cabinet);
}

void Renumber(CSender& sender, std::initializer_list<int> numbers)
{
    int cabinet = 0;
    for (const int number : numbers)
        At(sender, cabinet++).SetConnectionIndex(number - 1, nullptr);
}

const QUuid kGroup = QUuid::createUuid();

const Edit kEdits[] = {
    {"nothing", [](CSender&, CSender&) {}, {}},
    {"new ids and another order of the list",
     [](CSender&, CSender& after) {
         after.SetId(QUuid::createUuid());
         after.GetPort(0)->GetTileGroupSet().GetDirectGroupByDirIndex(0)->SetID(kGroup);
         for (int i = 0; i < 4; ++i)
             At(after, i).SetGroupId(kGroup);
         after.GetPort(0)->GetTileSet().ExchangeTile(0, 3);
     },
     {}},
    {"one moved",
     [](CSender&, CSender& after) { At(after, 3).SetY(512); },
     {"sender 1 port 1 cabinet 4: moved from 128, 128 to 128, 512"}},
    {"a wall shifted by a column: by place two stay, but renumbered",
     [](CSender&, CSender& after) {
         for (int i = 0; i < 4; ++i)
             At(after, i).Offset(128, 0);
     },
     {"sender 1 port 1 cabinet 1: moved from 0, 0 to 128, 0",
      "sender 1 port 1 cabinet 2: moved from 128, 0 to 256, 0",
      "sender 1 port 1 cabinet 3: moved from 0, 128 to 128, 128",
      "sender 1 port 1 cabinet 4: moved from 128, 128 to 256, 128"}},
    {"numbers shifted by one",
     [](CSender&, CSender& after) {
         Renumber(after, {2, 3, 5, 4});
     },
     {"sender 1 port 1 cabinet 1: number 2, was 1", "sender 1 port 1 cabinet 2: number 3, was 2",
      "sender 1 port 1 cabinet 3: number 5, was 4", "sender 1 port 1 cabinet 4: number 4, was 3"}},
    {"one taken out of the chain's middle, the rest closed up",
     [](CSender&, CSender& after) {
         after.GetPort(0)->GetTileSet().DeteleTile(1);
         Renumber(after, {1, 3, 2});
     },
     {"sender 1 port 1 cabinet 2: removed from 128, 0, size 128x128, number 2",
      "sender 1 port 1 cabinet 2: number 3, was 4", "sender 1 port 1 cabinet 3: number 2, was 3"}},
    {"one renumbered and another one moved: by place",
     [](CSender&, CSender& after) {
         Renumber(after, {2, 1});
         At(after, 2).SetX(512);
     },
     {"sender 1 port 1 cabinet 3: moved from 0, 128 to 512, 128",
      "sender 1 port 1 cabinet 1: number 2, was 1", "sender 1 port 1 cabinet 2: number 1, was 2"}},
    {"one of two at a place removed",
     [](CSender& before, CSender& after) {
         At(before, 1).SetX(0);
         At(after, 1).SetX(0);
         after.GetPort(0)->GetTileSet().DeteleTile(0);
     },
     {"sender 1 port 1 cabinet 1: removed from 0, 0, size 128x128, number 1"}},
    {"unnumbered cabinets, of which one is resized",
     [](CSender& before, CSender& after) {
         Renumber(before, {0, 0, 0, 0});
         Renumber(after, {0, 0, 0, 3});
         At(after, 0).SetWidth(64);
     },
     {"sender 1 port 1 cabinet 4: number 3, was no number",
      "sender 1 port 1 cabinet 1: size 64x128, was 128x128"}},
    {"to another port",
     [](CSender&, CSender& after) {
         auto* tile = new CTile(At(after, 2));
         after.GetPort(0)->GetTileSet().DeteleTile(2);
         after.GetPort(1)->GetTileSet().AddTile(tile);
         tile->SetConnectionIndex(4, nullptr);
         tile->SetGroupId({});
     },
     {"sender 1 port 2 cabinet 5: moved from port 1 to port 2, number 5, was 4"}},
    {"turned, of another type, wired in another way",
     [](CSender&, CSender& after) {
         SRotateParam record = At(after, 0).GetRotateRecord();
         record.angle = 15;
         At(after, 0).SetTileRotateParam(&record);
         At(after, 1).SetType(SMD5::FromString(QString(32, QLatin1Char('7'))));
         At(after, 2).SetMultiRcvsSize(QSize(2, 1));
     },
     {"sender 1 port 1 cabinet 1: turned from 0° to 15°",
      "sender 1 port 1 cabinet 2: type 77777777777777777777777777777777, was none; "
      "receiving cards 1x1 (single, no order, line 0), was 1x1 (single, line 0)",
      "sender 1 port 1 cabinet 3: receiving cards 2x1 (single, line 0), was 1x1 (single, line 0)"}},
    {"one out of its group, the other group dissolved",
     [](CSender&, CSender& after) {
         At(after, 0).SetGroupId({});
         after.GetPort(1)->GetTileSet().SetAllNotGroup();
         after.GetPort(1)->GetTileGroupSet().DeleteAll();
     },
     {"sender 1 port 1 cabinet 2: group of 3 cabinets: 1 left",
      "sender 1 port 2 cabinet 1: group of 4 cabinets removed"}},
    {"port and sender",
     [](CSender&, CSender& after) {
         after.SetSenderName(QStringLiteral("舞台"));
         after.SetCanvasSize(QSize(640, 480));
         after.GetPort(1)->SetFlagLock(true);
         after.GetPort(0)->SetBeBackupDest(after.GetId(), 1);
     },
     {"sender 1: name \"舞台\", was none; canvas 640x480, was 32768x16384",
      "sender 1 port 1: backup of sender 1 port 2, was none", "sender 1 port 2: lock on, was off"}},
};

} // namespace

class ProjectDiffTest : public ToolsTest
{
protected:
    std::vector<std::string> Compare(const CProjectData& before, const CProjectData& after)
    {
        std::vector<std::string> lines;
        for (const OrvanTools::Difference& difference :
             OrvanTools::CompareProjects({before, m_monitorBefore}, {after, m_monitorAfter}))
            lines.push_back(difference.Line().toStdString());
        return lines;
    }

    CMonitorInterfaceData m_monitorBefore;
    CMonitorInterfaceData m_monitorAfter;
};

TEST_F(ProjectDiffTest, EditsAreToldInFewLines)
{
    for (const Edit& edit : kEdits) {
        CSender& before = Build(QSize(4, 2), 2);
        CProjectData after(Project());
        edit.edit(before, *after.GetSender(0));
        EXPECT_EQ(Compare(Project(), after), edit.expected) << edit.name;
        EXPECT_EQ(Compare(after, Project()).empty(), edit.expected.empty()) << edit.name;
    }
}

TEST_F(ProjectDiffTest, SendersAreFoundByIdThenByNameAndSettingsStandFirst)
{
    Build(QSize(1, 1), 1);
    Project().NewSender()->SetSenderName(QStringLiteral("hall"));
    CProjectData after(Project());
    after.DeleteAllSender();
    after.NewSender()->SetSenderName(QStringLiteral("hall"));
    after.AddSender(new CSender);
    after.GetSender(1)->CopySender(*Project().GetSender(0));
    after.GetSender(1)->SetSenderName(QStringLiteral("a"));
    after.NewSender();
    after.GetPrintSetData()->designer = {true, QStringLiteral("Ann")};
    m_monitorAfter.SetIntervalTime(30);
    EXPECT_EQ(Compare(Project(), after),
              std::vector<std::string>({"designer on the form \"Ann\", was none (not printed)",
                                        "monitoring every 30 s, was 10 s", "sender 2: was sender 1 before",
                                        "sender 2: name \"a\", was none",
                                        "sender 3: Processor 3, 4 ports, 0 cabinets, added"}));
}
