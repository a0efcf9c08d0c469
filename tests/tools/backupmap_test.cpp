#include "tools/toolsproject.h"

#include <orvantools/backupmap.h>

using OrvanTools::BackupMap;
using OrvanTools::PortPlace;

class BackupMapTest : public ToolsTest
{
protected:
    BackupMapTest()
    {
        Project().SetToDefault();
        for (quint32 ip : {0U, 0xC0A8010AU, 0xC0A8010AU}) // the last two share an address
            Project().NewSender()->SetNetSenderIP(ip);
    }
    CPort& Port(int sender, int port) { return *Project().GetSender(sender)->GetPort(port); }
    void BackUp(const PortPlace& backup, const PortPlace& source)
    {
        Port(backup.sender, backup.port)
            .SetBeBackupDest(Project().GetSender(source.sender)->GetId(), source.port);
    }
};

TEST_F(BackupMapTest, SourcesAreFoundByIdAndByTheFirstSenderOfAnAddress)
{
    BackUp({0, 1}, {0, 0});
    BackUp({2, 3}, {0, 0});
    Port(0, 2).SetBeBackupDestIP(0xC0A8010AU, 1);
    const BackupMap map(Project());
    EXPECT_EQ(map.SourceOf({0, 1}), PortPlace({0, 0}));
    EXPECT_EQ(map.SourceOf({0, 2}), PortPlace({1, 1}));
    EXPECT_EQ(map.SourceOf({0, 0}), std::nullopt);
    EXPECT_EQ(map.BackupsOf({0, 0}), (std::vector<PortPlace>{{0, 1}, {2, 3}}));
    EXPECT_TRUE(map.BackupsOf({0, 1}).empty());
}

TEST_F(BackupMapTest, PortsThatAreNotInUseDoNotExist)
{
    BackUp({0, 0}, {1, 4}); // of a sender with four ports
    Port(0, 1).SetBeBackupDest(Project().GetSender(1)->GetId(), -1);
    Port(0, 2).SetBeBackupDest(QUuid::createUuid(), 0);
    Port(0, 3).SetBeBackupDestIP(1, 0);
    BackUp({1, 159}, {0, 0});
    const BackupMap map(Project());
    for (int port = 0; port < 4; ++port)
        EXPECT_EQ(map.SourceOf({0, port}), std::nullopt) << port;
    EXPECT_TRUE(map.BackupsOf({0, 0}).empty());
    for (const PortPlace& nowhere : {PortPlace{-1, 0}, PortPlace{3, 0}, PortPlace{0, 4}, PortPlace{0, -1}}) {
        EXPECT_EQ(map.SourceOf(nowhere), std::nullopt);
        EXPECT_TRUE(map.BackupsOf(nowhere).empty());
        EXPECT_FALSE(map.IsInLoop(nowhere));
    }
}

TEST_F(BackupMapTest, OnlyThePortsOfALoopAreInIt)
{
    BackUp({0, 0}, {1, 0});
    BackUp({1, 0}, {2, 0});
    BackUp({2, 0}, {0, 0});
    BackUp({0, 1}, {0, 0}); // leads into the loop
    BackUp({0, 2}, {0, 2}); // itself
    BackUp({1, 1}, {1, 2}); // leads nowhere
    const BackupMap map(Project());
    for (const PortPlace& port : {PortPlace{0, 0}, PortPlace{1, 0}, PortPlace{2, 0}, PortPlace{0, 2}})
        EXPECT_TRUE(map.IsInLoop(port)) << port.sender << " " << port.port;
    for (const PortPlace& port : {PortPlace{0, 1}, PortPlace{1, 1}, PortPlace{1, 2}, PortPlace{0, 3}})
        EXPECT_FALSE(map.IsInLoop(port)) << port.sender << " " << port.port;
}
