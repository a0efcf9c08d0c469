#include "tools/toolsproject.h"

#include <orvantools/projectdiff.h>

/// One sender before and after: 2 x 2 cabinets on each of two ports, numbered there and back in rows.
class ProjectDiffTest : public ToolsTest
{
protected:
    void Reset()
    {
        Build(QSize(4, 2), 2);
        m_after = Project();
    }

    CSender& After() { return *m_after.GetSender(0); }
    CTileSet& TilesAfter(int port = 0) { return After().GetPort(port)->GetTileSet(); }

    void NumberAfter(std::initializer_list<int> numbers)
    {
        int cabinet = 0;
        for (const int number : numbers)
            TilesAfter().GetTile(cabinet++)->SetConnectionIndex(number - 1, nullptr);
    }

    std::string Compare(const CProjectData& before, int secondsAfter = 10)
    {
        CMonitorInterfaceData monitor;
        const CMonitorInterfaceData monitorBefore = monitor;
        monitor.SetIntervalTime(secondsAfter);
        const auto differences = OrvanTools::CompareProjects({before, monitorBefore}, {m_after, monitor});
        QString told = OrvanTools::CountDifferences(differences);
        for (const OrvanTools::Difference& difference : differences)
            told += QLatin1Char('\n') + difference.Line();
        return told.toStdString();
    }

    /// As much of the lines as is expected.
    std::string Told(const std::string& expected)
    {
        return Compare(Project()).substr(0, std::max<size_t>(expected.size(), 1));
    }

    CProjectData m_after;
};

TEST_F(ProjectDiffTest, EditsAreToldInFewLines)
{
    const auto expect = [this](const char* told) {
        EXPECT_EQ(Told(told), told);
        Reset();
    };
    Reset();
    TilesAfter().ExchangeTile(0, 3);
    expect("");
    TilesAfter().SetOffset(128, 0); // two cabinets are where others were
    expect("4 differences: cabinets moved 4\nsender 1 port 1 cabinet 1: moved from 0, 0 to 128, 0\n");
    NumberAfter({2, 3, 5, 4});
    expect("4 differences: cabinets renumbered 4\nsender 1 port 1 cabinet 1: number 2, was 1\n");
    TilesAfter().DeteleTile(1);
    NumberAfter({1, 3, 2});
    expect("3 differences: cabinets removed 1, cabinets renumbered 2\n"
           "sender 1 port 1 cabinet 2: removed from 128, 0, size 128x128, number 2\n");
    NumberAfter({2, 1});
    TilesAfter().GetTile(2)->SetX(512);
    expect("3 differences: cabinets moved 1, cabinets renumbered 2\n");
    Tile(0, 1).SetX(0); // two at one place
    TilesAfter().GetTile(1)->SetX(0);
    TilesAfter().DeteleTile(0);
    expect("1 difference: cabinets removed 1\nsender 1 port 1 cabinet 1: removed");
    NumberAfter({0, 0, 0, 3});
    Tile(0, 0).SetConnectionIndex(-1, nullptr);
    TilesAfter().GetTile(0)->SetWidth(64);
    expect("3 differences: cabinets renumbered 2, cabinets changed 1\n"
           "sender 1 port 1 cabinet 2: no number, was 2\nsender 1 port 1 cabinet 3: no number, was 4\n"
           "sender 1 port 1 cabinet 1: size 64x128, was 128x128");
    TilesAfter().GetTile(0)->GetTileRotateParam()->angle = 15;
    TilesAfter().GetTile(2)->SetMultiRcvsSize(QSize(2, 1));
    expect("2 differences: cabinets changed 2\nsender 1 port 1 cabinet 1: turned from 0° to 15°\n"
           "sender 1 port 1 cabinet 3: receiving cards 2x1 (single, line 0), was 1x1 (single, line 0)");
    TilesAfter().GetTile(0)->SetGroupId({});
    TilesAfter(1).SetAllNotGroup();
    After().GetPort(1)->GetTileGroupSet().DeleteAll();
    expect("2 differences: groups 2\nsender 1 port 1 cabinet 2: group of 3 cabinets: 1 left\n"
           "sender 1 port 2 cabinet 1: group of 4 cabinets removed");
    After().GetPort(0)->SetBeBackupDest(After().GetId(), 1);
    expect("1 difference: ports changed 1\nsender 1 port 1: backup of sender 1 port 2, was none");
}

TEST_F(ProjectDiffTest, CabinetsWiredToOtherPortsStayWhereTheyAreAndSettingsStandFirst)
{
    Build(QSize(6, 1), 2);
    const CProjectData before(Project());
    Build(QSize(6, 1), 3).SetSenderName(QStringLiteral("舞台")); // with new ids
    Project().NewSender();
    m_after = Project();
    EXPECT_EQ(Compare(before, 30),
              "8 differences: senders added 1, senders changed 1, cabinets moved 3, cabinets renumbered 1, "
              "groups 1, settings 1\nmonitoring every 30 s, was 10 s\n"
              "sender 1: name \"舞台\", was none; ports 4, was 2\n"
              "sender 1 port 2 cabinet 1: moved from port 1 to port 2, number 1, was 3\n"
              "sender 1 port 2 cabinet 2: number 2, was 1\n"
              "sender 1 port 3 cabinet 1: moved from port 2 to port 3, number 1, was 2\n"
              "sender 1 port 3 cabinet 2: moved from port 2 to port 3, number 2, was 3\n"
              "sender 1 port 3 cabinet 1: group of 2 cabinets added\n"
              "sender 2: Processor 2, 4 ports, 0 cabinets, added");
    auto* last = new CSender;
    last->CopySender(After());
    m_after.DeleteSender(last->GetId());
    m_after.AddSender(last);
    last->GetPort(0)->GetTileSet().DeteleTile(1);
    const char* removed = "2 differences: senders changed 1, cabinets removed 1\n"
                          "sender 1 port 1 cabinet 2: removed from 128, 0, size 128x128, number 2\n"
                          "sender 2: was sender 1 before";
    EXPECT_EQ(Told(removed), removed);
}
