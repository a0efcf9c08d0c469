#include "common/xmldom.h"
#include "project/layoutdescription.h"
#include "project/projectdata.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

namespace {

QDomElement Parsed(const QByteArray& xml)
{
    QDomDocument document;
    EXPECT_TRUE(ParseXmlDom(xml, document, nullptr)) << xml.constData();
    return document.documentElement();
}

struct LayoutElementsTest : testing::Test
{
    void ReadTiles(const QByteArray& xml)
    {
        QDomElement element = Parsed(xml);
        project.ReadTileSet(QDomDocument(), "TitleLayout"_s, &tiles, &element, sender, 3);
    }

    CProjectData project;
    CTileSet tiles;
    QUuid sender = QUuid::createUuid();

    void SetUp() override { tiles.SetOwnerShip(true); }
};

} // namespace

TEST_F(LayoutElementsTest, FirstReceiversFollowFromTheFinishedWiringInAnyOrder)
{
    ReadTiles("<TitleLayout TileCount='4'><Tile_1 index='2' FirstRcvIndex='99'/>"
              "<Tile_2 index='0' MultiRcvSizeX='2' MultiRcvSizeY='2'/>"
              "<Tile_3 index='1' MultiRcvSizeX='3' MultiRcvSizeY='1'/><Tile_4 index='7'/></TitleLayout>");
    ASSERT_EQ(tiles.GetCount(), 4);
    EXPECT_EQ(tiles.GetTile(0)->GetBeginRcvCnnt(), 7);
    EXPECT_EQ(tiles.GetTile(1)->GetBeginRcvCnnt(), 0);
    EXPECT_EQ(tiles.GetTile(2)->GetBeginRcvCnnt(), 4);
    EXPECT_EQ(tiles.GetTile(3)->GetBeginRcvCnnt(), -1) << "nothing stands before it in the chain";
    ReadTiles("<TitleLayout TileCount='1'><Tile_1 index='1'/></TitleLayout>");
    EXPECT_EQ(tiles.GetTile(0)->GetBeginRcvCnnt(), -1) << "the first is missing";
}

TEST_F(LayoutElementsTest, CabinetsBelongToThePortThatIsNamedElseAsTheFileSays)
{
    const QByteArray xml = "<TitleLayout TileCount='1'><Tile_1 portIndexr='5' SenderId='"
                           + sender.toByteArray() + "'/></TitleLayout>";
    const QUuid other = QUuid::createUuid();
    QDomElement element = Parsed(xml);
    for (const auto& [id, port] : {std::pair(other, 0), std::pair(QUuid(), -1)}) {
        project.ReadTileSet(QDomDocument(), "TitleLayout"_s, &tiles, &element, id, port);
        EXPECT_EQ(tiles.GetTile(0)->GetSenderId(), id.isNull() ? sender : other);
        EXPECT_EQ(tiles.GetTile(0)->GetPortIndex(), port < 0 ? 5 : port);
    }
}

TEST_F(LayoutElementsTest, AttributesAreTakenAsTheirRulesSay)
{
    ReadTiles("<TitleLayout TileCount='2'>"
              "<Tile_1 Type='6a68bac7e613028bb11b40c35340e86' X='40000' Width='200' Y='-131073' "
              "Height='1025' "
              "MultiLine_3='258' IsMultiFixed='1' RotateAngle='-30' RotateCenterX='nan'/>"
              "<Tile_2 Type='6a68bac7e613028bb11b40c35340e863' IsMultiCabinet='1' IsMultiFixed='1' "
              "MultiRcvSizeX='0' MultiRcvSizeY='5' MultiOrdered='0' Width='1025'/></TitleLayout>");
    const CTile& first = *tiles.GetTile(0);
    EXPECT_TRUE(first.GetType().IsNull()) << "31 characters are no digest";
    EXPECT_TRUE(first.IsMultiRcvsOrdered()) << "only a type takes the flags of its product";
    EXPECT_EQ(first.GetX(), 32568);
    EXPECT_EQ(first.GetY(), 0);
    EXPECT_EQ(first.GetHeight(), 1024);
    EXPECT_EQ(first.GetMultiRcvsLineCode(3), 2);
    EXPECT_FALSE(first.IsMultiFixedLine()) << "one receiving card has no inner line";
    EXPECT_TRUE(first.GetRotateRecord().rotated);
    EXPECT_EQ(first.GetRotateRecord().centerX, -100) << "a number that is none leaves the default";
    const CTile& second = *tiles.GetTile(1);
    EXPECT_EQ(second.GetType().ToString(), "6a68bac7e613028bb11b40c35340e863"_s);
    EXPECT_EQ(second.GetMultiRcvsSize(), QSize(1, 1));
    EXPECT_EQ(second.GetWidth(), 1024);
    EXPECT_TRUE(second.IsMultiRcvsOrdered()) << "a fixed line is always ordered";
}

TEST_F(LayoutElementsTest, EachTypeTakesTheFlagsOfItsOwnProduct)
{
    TestLookup lookup;
    lookup.productType = SMD5::FromString(QString(32, QLatin1Char('a')));
    lookup.product.multi = true;
    const QByteArray a = " Type='" + QByteArray(32, 'a') + "'/>";
    const QByteArray b = " Type='" + QByteArray(32, 'b') + "'/>";
    ReadTiles("<TitleLayout TileCount='4'><Tile_1" + a + "<Tile_2" + b + "<Tile_3" + b + "<Tile_4" + a
              + "</TitleLayout>");
    for (int i = 0; i < tiles.GetCount(); ++i)
        EXPECT_EQ(tiles.GetTile(i)->IsMultiRcvTile(), i == 0 || i == 3) << i;

    const std::tuple<bool, char, const char*, bool, bool, bool> cases[] = {
        {false, 'a', "", true, false, false},
        {true, 'a', "", true, false, true},
        {true, 'a', "IsMultiCabinet='0' IsMultiFixed='1'", false, false, false},
        {true, 'a', "MultiOrdered='0'", true, false, false},
        {true, 'a', "MultiOrdered='0' IsMultiFixed='1'", true, true, true},
        {false, 'a', "IsMultiFixed='0' MultiOrdered='1'", true, false, true},
        {true, 'b', "IsMultiCabinet='1'", true, false, false},
    };
    for (const auto& [productIsOrdered, type, attributes, multi, fixed, ordered] : cases) {
        lookup.product.multiSet = productIsOrdered;
        ReadTiles("<TitleLayout TileCount='2'><Tile_1" + a + "<Tile_2 Type='" + QByteArray(32, type) + "' "
                  + attributes + "/></TitleLayout>");
        const CTile& tile = *tiles.GetTile(1);
        EXPECT_EQ(tile.IsMultiRcvTile(), multi) << type << attributes;
        EXPECT_EQ(tile.IsMultiFixedLine(), fixed) << type << attributes;
        EXPECT_EQ(tile.IsMultiRcvsOrdered(), ordered) << type << attributes;
    }
}

TEST_F(LayoutElementsTest, PartsOfALayoutReadBackAlone)
{
    CPort port;
    MakeWall(port, 2, 2);
    GroupsOf(port).GetDirectGroupByDirIndex(0)->GetSubGroupSet()->AddGroup(new CTileGroup, true);
    QDomElement root = Parsed("<root/>");
    const QDomDocument document = root.ownerDocument();
    project.WritePort(document, "Port"_s, &port, &root);
    project.WriteTileSet(document, "Tiles"_s, &TilesOf(port), &root);
    project.WriteSubTileGroup(document, "Group"_s, &GroupsOf(port), &root);

    CPort read;
    EXPECT_TRUE(project.ReadPort(document, "Port"_s, &read, &root, sender, 3, false));
    EXPECT_TRUE(read.GetPortIndex() == 3 && read.GetSenderId() == sender);
    EXPECT_FALSE(project.ReadPort(document, "Port"_s, nullptr, &root, sender, 3, false));
    project.ReadTileSet(document, "Tiles"_s, &tiles, &root, sender, 3);
    EXPECT_EQ(tiles, TilesOf(read));
    EXPECT_EQ(tiles.GetTile(3)->GetPosition(), TilesOf(port).GetTile(3)->GetPosition());
    CTileGroupSet groups;
    const QUuid parent = QUuid::createUuid();
    project.ReadSubTileGroup(document, "Group"_s, nullptr, &groups, &root, parent);
    ASSERT_EQ(groups.GetDirectCount(), 1);
    EXPECT_EQ(groups.GetDirectGroupByDirIndex(0)->GetParentGroupID(), parent);
    EXPECT_EQ(groups.GetDirectGroupByDirIndex(0)->GetSubGroupCount(), 1);
    project.ReadSubTileGroup(document, "Group"_s, nullptr, &groups, nullptr, sender);
    EXPECT_EQ(groups.GetDirectGroupByDirIndex(0)->GetParentGroupID(), parent) << "nothing was read";
    groups.DeleteAll();
}

TEST_F(LayoutElementsTest, NodesOfOnesOwnAreWrittenAsAFileCanHoldThem)
{
    QDomElement root = Parsed("<root/>");
    const QString text = "<屏幕> \"1\""_s;
    CProjectData::InsertNodeAttribute(&root, "Name"_s, text + QChar(0xFFFF));
    CProjectData::InsertChildNode(root.ownerDocument(), &root, "Text"_s, text + QChar(1));
    EXPECT_EQ(root.attribute("Name"_s), text);
    QDomNode child;
    ASSERT_TRUE(CProjectData::GetSubNode(&root, "Text"_s, child));
    EXPECT_EQ(child.toElement().text(), text);
    EXPECT_FALSE(CProjectData::GetSubNode(&root, "text"_s, child));
}

TEST_F(LayoutElementsTest, CountBelowOneKeepsWhatIsHeld)
{
    tiles.AddTile(new CTile);
    ReadTiles("<TitleLayout TileCount='0'><Tile_1/></TitleLayout>");
    EXPECT_EQ(tiles.GetCount(), 1);
    ReadTiles("<TitleLayout TileCount='3'/>");
    EXPECT_EQ(tiles.GetCount(), 0);

    CTileGroupSet groups;
    groups.AddGroup(new CTileGroup, true);
    for (const int count : {0, 3}) {
        QDomElement element = Parsed("<TitleGroupLayout GroupCount='" + QByteArray::number(count) + "'/>");
        project.ReadTileGroupSet(QDomDocument(), "TitleGroupLayout"_s, &tiles, &groups, &element);
        EXPECT_EQ(groups.GetDirectCount(), count == 0 ? 1 : 0);
    }
}

TEST_F(LayoutElementsTest, WithoutAnElementOrATargetNothingIsRead)
{
    CPort port;
    QDomElement root = Parsed("<root/>");
    EXPECT_FALSE(project.ReadPort(QDomDocument(), "Port"_s, nullptr, &root, sender, 0, false));
    EXPECT_FALSE(project.ReadPort(QDomDocument(), "Port"_s, &port, &root, sender, 0, false));
    project.NewSender();
    QString error;
    EXPECT_TRUE(project.ReadSender(QDomDocument(), nullptr, error, nullptr));
    EXPECT_EQ(project.GetSenderCount(), 1);
}

TEST_F(LayoutElementsTest, BackupsAreTakenOnlyWhenThePortSaysItIsOne)
{
    const QByteArray source = " bkSenderId='{c95ad16b-6333-4764-bb20-9ee65602cbb4}' BkPortIndex='2'";
    CPort port;
    const auto read = [&](const QByteArray& attributes, bool keepLocked = false) {
        QDomElement element = Parsed("<PortLayout" + attributes + "/>");
        EXPECT_TRUE(project.ReadPort(QDomDocument(), "PortLayout"_s, &port, &element, sender, 1, keepLocked));
    };
    read(source + " IsBackupDest='1'");
    EXPECT_EQ(port.GetBackupSrcPortIndex(), 2);
    read(source + " IsBackupDest='1' BkSenderIP='77'");
    EXPECT_EQ(port.GetBackupSrcIP(), 77u);
    EXPECT_TRUE(port.GetBackupSrcSenderId().isNull());
    read(source + " IsBackupDest='0'");
    EXPECT_FALSE(port.IsBackupDest());

    port.SetFlagLock(true);
    read(" Lock='0'", true);
    EXPECT_TRUE(port.IsFlagLock()) << "a locked port that is kept stays untouched";
}

TEST_F(LayoutElementsTest, GroupTreesLoseRepeatedIdsAndWhatLiesTooDeep)
{
    CTileGroupSet deep;
    CTileGroupSet* level = &deep;
    for (int depth = 0; depth < layoutnames::kMaxGroupDepth + 10; ++depth) {
        level->AddGroup(new CTileGroup, true);
        level = level->GetDirectGroupByDirIndex(0)->GetSubGroupSet();
    }
    const CTileGroup* second =
        deep.GetDirectGroupByDirIndex(0)->GetSubGroupSet()->GetDirectGroupByDirIndex(0);
    QDomDocument document;
    QDomElement root = document.createElement("Port_1"_s);
    project.WriteTileGroupSet(document, "TitleGroupLayout"_s, &deep, &root);
    QDomElement layout = root.firstChildElement();
    EXPECT_EQ(layout.firstChildElement().firstChildElement().tagName(), "TileGroup_1_1"_s);
    layout.setAttribute("GroupCount"_s, 2);
    QDomElement repeated = document.createElement("TileGroup_2"_s);
    repeated.setAttribute("GroupId"_s, second->GetID().toString());
    layout.appendChild(repeated);
    QDomElement deepest = layout.firstChildElement();
    int depth = 1;
    for (; !deepest.firstChildElement().isNull(); ++depth)
        deepest = deepest.firstChildElement();
    EXPECT_EQ(depth, layoutnames::kMaxGroupDepth) << "what lies deeper is not written either";
    deepest.setAttribute("GroupCount"_s, 1);
    deepest.appendChild(document.createElement(deepest.tagName() + "_1"_s));

    CTileGroupSet read;
    project.ReadTileGroupSet(document, "TitleGroupLayout"_s, &tiles, &read, &root);
    EXPECT_EQ(read.GetDirectCount(), 1);
    ASSERT_NE(read.GetSubGroupBySubID(second->GetID()), nullptr);
    EXPECT_EQ(read.GetSubGroupBySubID(second->GetID())->GetParentGroupID(),
              deep.GetDirectGroupByDirIndex(0)->GetID());
    QList<CTileGroup*> groups;
    EXPECT_EQ(read.GetGroupListRecursive(groups), layoutnames::kMaxGroupDepth);
    deep.DeleteAll();
    read.DeleteAll();
}

TEST_F(LayoutElementsTest, SingleSenderKeepsItsIdentity)
{
    CSender source;
    source.SetSenderName("file"_s);
    source.SetNetSenderIP(5);
    source.SetRecentPortIndex(160);
    QDomDocument document;
    QDomElement root = document.createElement("SenderLayout"_s);
    project.WriteSingleSender(document, &root, &source);
    QDomElement element = root.firstChildElement();
    EXPECT_FALSE(element.hasAttribute("SenderType"_s));
    CSender target;
    project.ReadSingleSender(document, &element, &target, sender, false, true);
    EXPECT_TRUE(target.GetId() == sender && target.GetNetSenderIP() == 0);
    EXPECT_TRUE(target.GetRecentPortIndex() == 0 && target.GetSenderName() == "file"_s);
    for (const bool keeps : {true, false}) {
        MakeWall(*target.GetPort(1), 1, 1);
        target.GetPort(1)->SetFlagLock(true);
        project.ReadSingleSender(document, &element, &target, QUuid(), keeps, false);
        EXPECT_TRUE(target.GetPort(1)->IsFlagLock() == keeps && target.GetId() == sender);
    }
}
