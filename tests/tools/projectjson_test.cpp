#include "tools/toolsproject.h"

#include <orvantools/jsonwriter.h>
#include <orvantools/projectjson.h>
#include <orvantools/projecttext.h>

#include <QJsonArray>
#include <QJsonDocument>

class ProjectJsonTest : public ToolsTest
{
protected:
    QJsonObject Port(int port)
    {
        const QJsonObject object =
            OrvanTools::DescribeProject(Project(), GetMonitorData()->GetInterfaceData(), true);
        return object[QStringLiteral("senders")][0][QStringLiteral("ports")][port].toObject();
    }
    static QString Key(const char* name) { return QString::fromLatin1(name); }
};

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

TEST_F(ProjectJsonTest, WhatIsWrittenInPiecesIsTheWhole)
{
    Build(QSize(4, 2), 3);
    Project().NewSender()->SetSenderName(QStringLiteral("\"舞\n台\\"));
    const CMonitorInterfaceData monitor = GetMonitorData()->GetInterfaceData();
    for (const bool tiles : {false, true}) {
        QJsonObject whole = OrvanTools::DescribeProject(Project(), monitor, tiles);
        whole.insert(Key("format"), QJsonArray());
        QByteArray pieces;
        OrvanTools::JsonWriter out([&](const QByteArray& piece) { pieces += piece; });
        OrvanTools::WriteProject(Project(), monitor, tiles, {}, {{Key("format"), QJsonArray()}}, out);
        EXPECT_EQ(pieces, QJsonDocument(whole).toJson());
    }
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
