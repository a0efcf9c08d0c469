#include "tools/toolsproject.h"

#include <orvantools/projectjson.h>
#include <orvantools/projecttext.h>

#include <QJsonArray>

class ProjectJsonTest : public ToolsTest
{
protected:
    QJsonObject Port(int port)
    {
        const QJsonObject object =
            OrvanTools::DescribeProject(Project(), GetMonitorData()->GetInterfaceData(), true);
        return object[QStringLiteral("senders")]
            .toArray()[0]
            .toObject()[QStringLiteral("ports")]
            .toArray()[port]
            .toObject();
    }
    static QString Key(const char* name) { return QString::fromLatin1(name); }
};

TEST_F(ProjectJsonTest, BackupsAreNamedAsTheyAreStored)
{
    CSender& sender = Build(QSize(4, 1), 4);
    EXPECT_TRUE(Port(0)[Key("backupOf")].isNull());
    const QUuid gone = QUuid::createUuid();
    sender.GetPort(0)->SetBeBackupDest(gone, 300);
    sender.GetPort(1)->SetBeBackupDestIP(0xFFFFFFFFUL, 2);
    EXPECT_EQ(Port(0)[Key("backupOf")], (QJsonObject{{Key("sender"), gone.toString()}, {Key("port"), 300}}));
    EXPECT_EQ(Port(1)[Key("backupOf")], (QJsonObject{{Key("ip"), 4294967295.0}, {Key("port"), 2}}));
    EXPECT_EQ(Port(0)[Key("cabinets")].toInt(), 1); // its own, not its source's
}

TEST_F(ProjectJsonTest, BoundsAreThoseBeforeTurning)
{
    Build(QSize(4, 2), 1);
    Turn(0, 90);
    Turn(0, -90);
    EXPECT_EQ(Port(0)[Key("bound")], (QJsonArray{0, 0, 512, 256}));
    SRotateParam record = Tile(0, 0).GetRotateRecord();
    record.angle = 45;
    Tile(0, 0).SetTileRotateParam(&record);
    ASSERT_TRUE(Tile(0, 0).IsTileRotated());
    EXPECT_EQ(Port(0)[Key("bound")], (QJsonArray{0, 0, 512, 256}));
    EXPECT_TRUE(Port(1)[Key("bound")].isNull());
}

TEST_F(ProjectJsonTest, FractionsHaveSixDigitsAndIntegersAll)
{
    Build(QSize(1, 1), 1);
    SRotateParam record;
    record.angle = 12.3456789;
    record.centerX = 100000.4;
    Tile(0, 0).SetTileRotateParam(&record);
    const QJsonObject rotation = Port(0)[Key("tiles")].toArray()[0].toObject()[Key("rotation")].toObject();
    EXPECT_EQ(rotation[Key("angle")].toDouble(), 12.3457);
    EXPECT_EQ(rotation[Key("center")].toArray()[0].toDouble(), 100000);
    Project().AddRcvParamGamma(SMD5::FromString(QString(32, QLatin1Char('1'))), 2.2F);
    const QJsonObject object =
        OrvanTools::DescribeProject(Project(), GetMonitorData()->GetInterfaceData(), false);
    EXPECT_EQ(object[Key("gamma")].toArray()[0].toObject()[Key("gamma")].toDouble(), 2.2);
}

TEST_F(ProjectJsonTest, NestedGroupsAreCountedAndShownWhereTheyHang)
{
    Build(QSize(2, 2), 1);
    CTileGroupSet& groups = *Project().GetSender(0)->GetPort(0)->GetPortProject()->GetTileGroupSet();
    CTileGroup* outer = groups.GetDirectGroupByDirIndex(0);
    auto* inner = new CTileGroup;
    inner->SetParentGroupID(outer->GetID());
    outer->GetSubGroupSet()->AddGroup(inner, true);
    EXPECT_EQ(Port(0)[Key("groups")].toInt(), 2);
    const QJsonObject top = Port(0)[Key("groupTree")].toArray()[0].toObject();
    const QJsonObject below = top[Key("children")].toArray()[0].toObject();
    EXPECT_TRUE(top[Key("parent")].isNull());
    EXPECT_EQ(below[Key("parent")], top[Key("id")]);
    EXPECT_EQ(below[Key("id")].toString(), inner->GetID().toString());
}

TEST_F(ProjectJsonTest, TheSummaryNamesWhatAPortIs)
{
    CSender& sender = Build(QSize(4, 1), 4);
    sender.SetSenderName(QStringLiteral("舞台"));
    sender.GetPort(1)->SetBeBackupDest(sender.GetId(), 0);
    sender.GetPort(2)->SetBeBackupDest(QUuid::createUuid(), 0);
    sender.GetPort(3)->SetFlagLock(true);
    sender.GetPort(3)->SetVisible(false);
    const QString text = OrvanTools::SummarizeProject(Project());
    EXPECT_TRUE(text.contains(QStringLiteral("backup of 舞台, port 1\n")));
    EXPECT_TRUE(text.contains(QStringLiteral("backup of an unknown sender, port 1\n")));
    EXPECT_TRUE(text.contains(QStringLiteral("locked, hidden\n")));
}
