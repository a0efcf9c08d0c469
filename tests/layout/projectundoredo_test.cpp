#include "layout/projectundoredo.h"

#include "layout/changeteller.h"
#include "layout/layoutsnapshot.h"
#include "layout/tileaccess.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <QSet>

#include <algorithm>
#include <deque>
#include <functional>
#include <limits>

namespace {

using Step = CSenderRecordItem;

struct ProjectUndoRedoTest : testing::Test
{
    ProjectUndoRedoTest() { Open(MakeWall(2, 2, 4)); }

    void Open(std::unique_ptr<CSender> sender)
    {
        lookup.senders = {sender.get()};
        owned.push_back(std::move(sender));
        history.Init();
    }

    CSender& Sender() { return *lookup.senders.first(); }
    CPort& Port(int port) { return *Sender().GetPort(port); }
    CTile& Tile(int port, int tile = 0) { return *TilesOf(Port(port)).GetTile(tile); }

    /// Moves the first cabinet of a port to a place not taken before, as a step.
    bool Edit(int port = 0)
    {
        Tile(port).SetX(++place);
        Sender().SetRecentPortIndex(port);
        return history.AddOneStep(Step::OperationMoveTiles);
    }

    bool Undo(int steps = 1) { return history.Undo(steps, nullptr, nullptr); }
    bool Redo(int steps = 1) { return history.Redo(steps, nullptr, nullptr); }

    TestLookup lookup;
    std::deque<std::unique_ptr<CSender>> owned;
    CProjectUndoRedo history;
    int place = 0;
};

/// What a port holds, sharing nothing with it: a cabinet that shares its data with a copy tells of the next
/// write to it.
struct PlainPort
{
    explicit PlainPort(CPort& port) : groups(GroupSnapshot::Take(GroupsOf(port), {}))
    {
        for (const CTile* tile : TilesOf(port).GetTiles())
            tiles.push_back(*TileAccess::Data(*tile));
    }

    bool operator==(const PlainPort& other) const
    {
        return std::equal(tiles.begin(), tiles.end(), other.tiles.begin(), other.tiles.end(),
                          [](const TileFields& a, const TileFields& b) { return a.IsEqual(b); })
               && GroupSnapshot::IsEqual(groups, other.groups);
    }

    std::vector<TileFields> tiles;
    GroupSnapshot::List groups;
};

constexpr int kEditedPorts = 4;
using PlainSender = std::vector<PlainPort>;

PlainSender PlainCopy(CSender& sender)
{
    PlainSender copy;
    for (int i = 0; i < kEditedPorts; ++i)
        copy.emplace_back(*sender.GetPort(i));
    return copy;
}

/// The chunks and the cabinets' data that a snapshot is made of.
QSet<const void*> PartsOf(const LayoutSnapshot& snapshot)
{
    QSet<const void*> parts;
    for (const LayoutSnapshot::Chunk& chunk : snapshot.GetChunks()) {
        parts.insert(chunk.constData());
        for (const LayoutSnapshot::Cabinet& cabinet : chunk)
            parts.insert(cabinet.constData());
    }
    return parts;
}

/// Mostly writes to cabinets; adds, drops and moves them in the list now and then.
void EditAnyhow(CSender& sender, QRandomGenerator* random)
{
    CPort& port = *sender.GetPort(random->bounded(kEditedPorts));
    CTileSet& tiles = TilesOf(port);
    CTileGroupSet& groups = GroupsOf(port);
    const int value = random->bounded(1000000);
    if (tiles.GetCount() == 0)
        MakeWall(port, 1 + value % 40, 1 + value % 13);
    const int count = tiles.GetCount();
    CTile* tile = tiles.GetTile(value % count);
    const auto turnBehindPointers = [&] {
        for (CTile* each : tiles.GetTiles()) {
            if (TileAccess::Data(*each)->handedOut)
                const_cast<SRotateParam&>(each->GetRotateRecord()).angle = value % 170;
        }
    };
    const auto showMany = [&] { // more than the journal keeps, less than is walked for
        for (int i = 0; i < qMin(count, 1100); ++i)
            tiles.GetTile(i)->SetTileVisible(value % 2 == 0);
    };
    const auto nest = [&] {
        if (groups.GetDirectCount() > 1)
            NestGroups(port, groups.GetDirectGroupByDirIndex(0)->GetID(),
                       {groups.GetDirectGroupByDirIndex(groups.GetDirectCount() - 1)->GetID()});
    };
    const std::function<void()> edits[] = {
        [&] { tile->SetX(value % 30000); },
        [&] { tile->GetTileRotateParam()->angle = value % 180; },
        turnBehindPointers,
        [&] { *tile = *tiles.GetTile(value / 7 % count); },
        [&] { tile->SetMultiRcvDemarcateIndex(value % 3); }, // often what it was
        [&] { tiles.AutoConnection(static_cast<EnAutoNumberType>(value % 8), 0); },
        showMany,
        [&] { value % 2 == 0 ? groups.SelectAll(3) : groups.CancelAllSelect(3); },
        [&] { MakeWall(port, 1 + value % 40, 1 + value % 13); },
        [&] { tiles.DeteleTile(tile); },
        [&] { tiles.ExchangeTile(0, value % count); },
        [&] { tiles.DeteleTile(count - 1), tiles.AddTile(new CTile); }, // mostly at the same address
        nest,
        [&] { port.GetPortProject()->DeleteSelectedTileAndGroup(); },
        [&] { *port.GetPortProject() = *sender.GetPort(value % kEditedPorts)->GetPortProject(); },
    };
    edits[random->bounded(6) == 0 ? 8 + random->bounded(7) : random->bounded(8)]();
}

} // namespace

TEST_F(ProjectUndoRedoTest, EveryKindOfEditIsTakenBackAndBroughtBack)
{
    QRandomGenerator random(7);
    std::vector<PlainSender> states;
    for (int i = 0; i < 600; ++i) {
        if (i % 100 == 0) {
            Open(MakeWall(12, 10, 2));
            MakeWall(Port(2), 75, 60);
            history.Init();
            states = {PlainCopy(Sender())};
        }
        if (random.bounded(8) == 0)
            Port(random.bounded(kEditedPorts)).SetVisible(random.bounded(2) == 0);
        for (int edits = random.bounded(3); edits > 0; --edits)
            EditAnyhow(Sender(), &random);
        const int current = history.GetCurSenderCurStep();
        const PlainSender live = PlainCopy(Sender());
        if (random.bounded(2) == 0) {
            const bool changed = !(live == states[static_cast<size_t>(current)]);
            ASSERT_EQ(history.AddOneStep(Step::OperationPasteTiles), changed) << "step " << i;
            if (changed) {
                states.resize(static_cast<size_t>(current) + 1, live);
                states.push_back(live);
            }
            continue;
        }
        const int target = random.bounded(static_cast<int>(states.size()));
        ASSERT_TRUE(target < current ? Undo(current - target) : Redo(target - current));
        for (int port = 0; port < kEditedPorts; ++port) {
            const PlainSender& wanted = Port(port).IsVisible() ? states[static_cast<size_t>(target)] : live;
            ASSERT_TRUE(PlainPort(Port(port)) == wanted[static_cast<size_t>(port)])
                << "step " << i << ", port " << port;
        }
    }
}

TEST_F(ProjectUndoRedoTest, NeverUnmodifiedWhileTheWallDiffersFromWhatWasSaved)
{
    for (unsigned seed = 1; seed <= 4; ++seed) {
        QRandomGenerator random(seed);
        history.Init();
        std::array<int, 2> saved = {Tile(0).GetX(), Tile(1).GetX()};
        int clean = 0;
        for (int i = 0; i < 1500; ++i) {
            const int choice = random.bounded(100);
            const int steps = random.bounded(choice % 10 != 9 ? 3 : 190);
            if (choice < 12) {
                history.SetAsSaveStep();
                saved = {Tile(0).GetX(), Tile(1).GetX()};
                EXPECT_FALSE(history.IsModidfied());
            } else if (choice < 24) {
                Port(1).SetVisible(choice % 2 == 0); // while it is hidden, steps skip it
            } else if (choice < 54) {
                choice % 4 < 2 ? Undo(steps) : Redo(steps);
            } else {
                EXPECT_TRUE(Edit(choice % 2));
            }
            if (history.IsModidfied())
                continue;
            ++clean;
            ASSERT_EQ((std::array<int, 2>{Tile(0).GetX(), Tile(1).GetX()}), saved) << "edit " << i;
        }
        EXPECT_GT(clean, 30);
        EXPECT_LE(history.GetCanUndoStep() + history.GetCanRedoStep(), 199);
        Port(1).SetVisible(true);
    }
}

TEST_F(ProjectUndoRedoTest, TheLimitKeepsTheBaseAndMovesTheSavedPositionWithItsRecord)
{
    for (const int savedAt : {0, 1, 5}) {
        history.Init();
        const int base = Tile(0).GetX();
        for (int i = 1; i <= 201; ++i) {
            EXPECT_TRUE(Edit());
            if (i == savedAt)
                history.SetAsSaveStep();
        }
        EXPECT_EQ(history.GetCanUndoStep(), 199) << "200 with the base";
        EXPECT_TRUE(Undo(198));
        EXPECT_EQ(Tile(0).GetX(), place - 198) << "the oldest edits after the base are gone";
        EXPECT_TRUE(history.IsModidfied() && Undo(1));
        EXPECT_EQ(Tile(0).GetX(), base);
        EXPECT_EQ(history.IsModidfied(), savedAt != 0);
        Redo(3); // two steps went, so what was edit 5 stands at 3 now
        EXPECT_EQ(history.IsModidfied(), savedAt != 5);
    }
}

TEST_F(ProjectUndoRedoTest, OnlyChangedLayoutsAreRecorded)
{
    for (const auto type : {Step::OperationSelect, Step::OperationView}) {
        Tile(0).SetX(5);
        EXPECT_TRUE(history.AddOneStep(type));
        EXPECT_EQ(history.GetCanUndoStep(), 0);
    }
    EXPECT_FALSE(history.IsModidfied());
    EXPECT_TRUE(history.AddOneStep(Step::OperationAlign) && Undo());
    for (const int x : {9, Tile(0).GetX()})
        Tile(0).SetX(x);
    EXPECT_FALSE(history.AddOneStep(Step::OperationAlign)) << "it is back where it was";
    SRotateParam record = Tile(0).GetRotateRecord();
    record.centerX += 0.3;
    Tile(0).SetTileRotateParam(&record);
    EXPECT_FALSE(history.AddOneStep(Step::OperationRotate)) << "a rounded record is no change";

    const QUuid parent = GroupsOf(Port(0)).GetDirectGroupByDirIndex(0)->GetID();
    const QUuid child = MakeWall(Port(0), 2, 1);
    NestGroups(Port(0), parent, {child});
    EXPECT_TRUE(history.AddOneStep(Step::OperationGroup));
    GroupsOf(Port(0)).GetSubGroupBySubID(child)->GetRotateParam()->angle = 30;
    EXPECT_TRUE(history.AddOneStep(Step::OperationRotate)) << "a change deep in the group tree counts";
}

TEST_F(ProjectUndoRedoTest, AStepCostsWhatItChanged)
{
    Open(MakeWall(100, 50));
    CPort& port = Port(0);
    CTileSet& tiles = TilesOf(port);
    const auto take = [&](const LayoutSnapshot::Pointer& before) {
        return LayoutSnapshot::Take(port, before, std::nullopt);
    };
    auto base = take({});
    const auto step = [&](int parts) {
        const auto next = take(base);
        EXPECT_LE((PartsOf(*next) - PartsOf(*base)).size(), parts);
        base = next;
    };
    tiles.GetTile(2345)->SetX(1);
    step(2);
    tiles.AutoConnection(AutoNumberColumnsTopRight, 0);
    base = take(base);
    tiles.AutoConnection(AutoNumberColumnsTopRight, 0);
    EXPECT_EQ(take(base), base) << "numbered again as it was";
    tiles.DeteleTile(1234);
    step(16); // the chunks behind it
    for (int i = 0; i < tiles.GetCount(); ++i)
        tiles.GetTile(i)->GetTileRotateParam(); // from now on cabinets keep their data to themselves
    EXPECT_EQ(take(base), base);
    tiles.DeteleTile(0);
    step(20);
}

TEST_F(ProjectUndoRedoTest, CabinetsKeepTheirAddressAndViewStateWhereNothingChanged)
{
    CTile* moved = &Tile(0, 1);
    SRotateParam* record = Tile(0, 2).GetTileRotateParam();
    for (CTile* tile : {&Tile(0, 0), moved}) {
        tile->SetTileShowColor(Qt::red);
        tile->SetTileGamutStatus(3);
        tile->SetRcvSelected(0, true);
    }
    history.Init();
    moved->SetX(999);
    record->angle = 45;
    TilesOf(Port(0)).AddTile(new CTile);
    EXPECT_TRUE(history.AddOneStep(Step::OperationAddTiles) && Undo());
    EXPECT_TRUE(TilesOf(Port(0)).GetCount() == 4 && &Tile(0, 1) == moved && moved->GetX() == 128);
    EXPECT_TRUE(Tile(0, 0).GetTileShowColor() == Qt::red && Tile(0, 0).IsRcvSelected(0));
    EXPECT_FALSE(moved->GetTileShowColor().isValid() || moved->IsRcvSelected(0));
    EXPECT_TRUE(moved->GetTileGamutStatus() == 0 && Tile(0, 0).GetTileGamutStatus() == 3);
    EXPECT_TRUE(record->angle == 0 && record == Tile(0, 2).GetTileRotateParam()) << "it stays right";
    EXPECT_TRUE(Edit() && Undo() && record == Tile(0, 2).GetTileRotateParam())
        << "of one that did not change";
}

TEST_F(ProjectUndoRedoTest, GroupsComeBackAsTheyWere)
{
    const QUuid outer = GroupsOf(Port(0)).GetDirectGroupByDirIndex(0)->GetID();
    const QUuid inner = MakeWall(Port(0), 2, 1);
    NestGroups(Port(0), outer, {inner});
    auto* twin = new CTileGroup(*GroupsOf(Port(0)).GetSubGroupBySubID(inner)); // as a damaged file may hold
    twin->SetSelected(3, false);
    twin->GetRotateParam()->angle = 45;
    GroupsOf(Port(0)).AddGroup(twin, true);
    const auto groups = [this] {
        QList<CTileGroup*> all;
        GroupsOf(Port(0)).GetGroupListRecursive(all);
        std::vector<CTileGroup> copies;
        for (const CTileGroup* group : qAsConst(all)) {
            copies.push_back(*group);
            copies.back().GetSubGroupSet()->DeleteAll();
        }
        return copies;
    };
    const auto before = groups();
    history.Init();
    Port(0).GetPortProject()->ClearAllTiles();
    EXPECT_TRUE(history.AddOneStep(Step::OperationClear) && groups().empty() && Undo());
    EXPECT_EQ(before.size(), 3U);
    EXPECT_TRUE(groups() == before);
}

TEST_F(ProjectUndoRedoTest, AWriteBehindAPointerIsNoticedHoweverTheListChangedBefore)
{
    EXPECT_TRUE(Edit());
    auto* tile = new CTile;
    SRotateParam* record = tile->GetTileRotateParam();
    TilesOf(Port(0)).AddTile(tile);
    EXPECT_TRUE(history.AddOneStep(Step::OperationAddTiles));
    record->angle = 45;
    EXPECT_TRUE(history.AddOneStep(Step::OperationRotate) && Undo());
    EXPECT_EQ(record->angle, 0);
}

TEST_F(ProjectUndoRedoTest, CabinetListedTwiceBecomesTwoWhenTwoWereRecorded)
{
    CTileSet& tiles = TilesOf(Port(0));
    const CTileSet before = tiles;
    tiles.DeteleTile(1);
    tiles.AddTile(tiles.GetTile(0));
    EXPECT_TRUE(history.AddOneStep(Step::OperationAddTiles) && Undo());
    EXPECT_EQ(tiles, before);
}

TEST_F(ProjectUndoRedoTest, HiddenPortsAndPortsThatBecameBackupsAreLeftOut)
{
    Edit(0);
    Port(100).SetBeBackupDest(QUuid::createUuid(), 1);
    history.SetAsSaveStep();
    EXPECT_TRUE(Undo() && Redo());
    EXPECT_FALSE(history.IsModidfied()) << "an empty port has nothing to lose";
    Port(100).CancelBackupDest();

    const int before = Tile(0).GetX();
    Edit(1);
    Edit(0);
    Port(1).SetVisible(false);
    const int kept = Tile(1).GetX();
    EXPECT_TRUE(Undo(2));
    EXPECT_TRUE(Tile(0).GetX() == before && Tile(1).GetX() == kept && Sender().GetRecentPortIndex() == 0);
    EXPECT_TRUE(history.IsModidfied()) << "the hidden port still differs";
    history.SetAsSaveStep();
    EXPECT_FALSE(history.IsModidfied());

    Port(0).SetBeBackupDest(QUuid::createUuid(), 1);
    EXPECT_TRUE(Redo(2));
    EXPECT_EQ(TilesOf(Port(0)).GetCount(), 0);
    EXPECT_TRUE(Undo(2));
    EXPECT_TRUE(history.IsModidfied()) << "the step's layout could not come back";
}

TEST_F(ProjectUndoRedoTest, WhatWasSavedApartFromAnyStepIsNotFoundAgain)
{
    Edit(0);
    Edit(1);
    Edit(1);
    Port(1).SetVisible(false);
    EXPECT_TRUE(Undo(2));
    history.SetAsSaveStep();
    EXPECT_FALSE(history.IsModidfied());
    Port(1).SetVisible(true);
    EXPECT_TRUE(Undo() && history.IsModidfied());
    EXPECT_TRUE(Redo() && history.IsModidfied()) << "the step as it was recorded is not what was saved";

    history.Init();
    EXPECT_TRUE(Edit() && Edit());
    history.SetAsSaveStep();
    EXPECT_TRUE(Undo() && Edit() && Undo(2) && history.IsModidfied()) << "the saved step is gone";
}

TEST_F(ProjectUndoRedoTest, OneSendersHistoryIsUsedAlone)
{
    const int before = Tile(2).GetX();
    CSenderUndoRedo alone;
    EXPECT_FALSE(alone.AddStep(Sender(), Step::OperationAlign) || alone.Restore(&Sender(), 2));
    alone.Start(Sender());
    Tile(2).SetX(999);
    EXPECT_TRUE(alone.AddStep(Sender(), Step::OperationAlign) && alone.Move(-1));
    EXPECT_TRUE(alone.Restore(&Sender(), 2) && Tile(2).GetX() == before);
    EXPECT_EQ(Sender().GetRecentPortIndex(), 2);
    QVector<int> changed;
    EXPECT_TRUE(alone.Move(1) && alone.Restore(&Sender(), 1, &changed) && Tile(2).GetX() == 999);
    EXPECT_EQ(changed, QVector<int>{2});
    alone.Clear();
    EXPECT_TRUE(alone.GetStepCount() == 0 && !alone.GetStep(0) && alone.GetSenderId().isNull());
}

TEST_F(ProjectUndoRedoTest, AnOperationOfSeveralEditsIsToldOnceAndInOrder)
{
    std::vector<SDocumentChange> told;
    EXPECT_TRUE(Edit(0)); // before anybody listens
    history.SetChangeHandler([&told](const SDocumentChange& change) { told.push_back(change); });
    {
        const DocumentOperation all(&history);
        EXPECT_TRUE(Edit(3) && Edit(1) && Edit(3));
    }
    EXPECT_TRUE(Undo(0));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told[0].ports == (QVector<SPortPlace>{{0, 1}, {0, 3}}));
    EXPECT_TRUE(told[0].steps && !told[0].modifiedState && !told[0].saved && !told[0].senders);
}

TEST_F(ProjectUndoRedoTest, HiddenPortsTakePartWhereTheHostWantsThat)
{
    history.SetHiddenPortsIncluded(true);
    Sender().SetRecentPortIndex(0);
    const CPortProject& layout = *Port(1).GetPortProject();
    const CPortProject before = layout;
    Edit(1);
    const CPortProject after = layout;
    Port(1).SetVisible(false);
    EXPECT_TRUE(Undo() && layout == before && !history.IsModidfied());
    EXPECT_TRUE(Redo() && layout == after);
    EXPECT_FALSE(Port(1).IsVisible());
    Port(1).SetBeBackupDest(QUuid::createUuid(), 1);
    EXPECT_TRUE(Undo() && TilesOf(Port(1)).GetCount() == 0) << "as a visible one";
}

TEST_F(ProjectUndoRedoTest, AStepHoldsWhosePortItIs)
{
    const QUuid owner = Port(3).GetSenderId();
    Port(3).SetSenderIdAndPortIndex(QUuid(), 7);
    EXPECT_TRUE(Edit() && Undo() && Port(3).GetSenderId() == owner && Port(3).GetPortIndex() == 3);
    EXPECT_TRUE(Redo() && Port(3).GetSenderId().isNull() && Port(3).GetPortIndex() == 7);
    Port(3).SetBeBackupDest(owner, 1);
    EXPECT_TRUE(Edit() && Undo() && TilesOf(Port(3)).GetCount() == 0);
    EXPECT_TRUE(Redo() && TilesOf(Port(3)).GetCount() == 4);
}

TEST_F(ProjectUndoRedoTest, UndoTellsThePortsOfTheStepsAndShowsTheSecond)
{
    for (const int port : {2, 3, 2, 1})
        Edit(port);
    int ports[8] = {-9, -9, -9, -9, -9, -9, -9, -9};
    int count = 8;
    EXPECT_TRUE(history.Undo(3, ports, &count)); // steps on the ports 2, 3, 2, 1
    EXPECT_EQ(std::vector<int>(ports, ports + count), (std::vector<int>{2, 3, 1}));
    EXPECT_EQ(Sender().GetRecentPortIndex(), 3);
    count = 4;
    EXPECT_TRUE(history.Redo(3, ports, &count));
    EXPECT_EQ(std::vector<int>(ports, ports + count), (std::vector<int>{2, 3, 1}));
    EXPECT_EQ(Sender().GetRecentPortIndex(), 3);
    count = 2;
    EXPECT_TRUE(history.Undo(2, ports, &count)) << "a list too short is left empty";
    EXPECT_EQ(count, 0);
    EXPECT_EQ(Sender().GetRecentPortIndex(), 3) << "the step's own";
    EXPECT_TRUE(history.GetRedoStepPort(2) == 1 && history.GetUndoStepType(2) == Step::OperationBase);

    for (const int steps : {-1, 3, std::numeric_limits<int>::max()}) {
        EXPECT_FALSE(Undo(steps) || Redo(steps));
        EXPECT_TRUE(history.GetUndoStepType(steps) == -1 && history.GetRedoStepType(steps) == -1);
        EXPECT_TRUE(history.GetUndoStepPort(steps) == -1 && history.GetRedoStepPort(steps) == -1);
    }
    EXPECT_EQ(history.GetCurSenderCurStep(), 2);
}

TEST_F(ProjectUndoRedoTest, StepsAreCountedAndNamedBothWays)
{
    const Step::VIEW_OPERATION_TYPE types[] = {Step::OperationMoveTiles, Step::OperationAlign,
                                               Step::OperationRotate};
    for (const int port : {1, 2, 3}) {
        Tile(port).SetX(++place);
        Sender().SetRecentPortIndex(port);
        EXPECT_TRUE(history.AddOneStep(types[port - 1]));
    }
    int ports[] = {0, 0, 0};
    int count = 3;
    EXPECT_TRUE(history.Undo(1, ports, &count));
    EXPECT_TRUE(count == 2 && ports[0] == 2 && ports[1] == 3 && Sender().GetRecentPortIndex() == 3);
    EXPECT_TRUE(history.GetCanUndoStep() == 2 && history.GetCanRedoStep() == 1);
    EXPECT_TRUE(history.GetUndoStepType(0) == types[1] && history.GetRedoStepType(0) == types[1]);
    EXPECT_TRUE(history.GetUndoStepType(1) == types[0] && history.GetRedoStepType(1) == types[2]);
    EXPECT_TRUE(history.GetUndoStepPort(1) == 1 && history.GetRedoStepPort(1) == 3);
    EXPECT_TRUE(history.GetUndoStepPort(2) == 0 && history.GetRedoStepPort(2) == -1);
    EXPECT_TRUE(Redo() && Edit(3));
    count = 3;
    ports[1] = 0;
    EXPECT_TRUE(history.Undo(1, ports, &count));
    EXPECT_TRUE(count == 1 && ports[0] == 3 && Sender().GetRecentPortIndex() == 3) << "both on one port";

    history.Release();
    EXPECT_FALSE(Undo(0) || Redo(0) || Undo(1));
    EXPECT_TRUE(history.GetCanUndoStep() == 0 && history.GetCanRedoStep() == 0);
    EXPECT_EQ(history.GetCurSenderCurStep(), -1);
    const QUuid gone = Sender().GetId();
    EXPECT_TRUE(history.SenderUndoRedoInit(&Sender()));
    lookup.senders.clear();
    EXPECT_FALSE(history.AddOneStep(Step::OperationAlign) || Undo(0)) << "no sender is current";
    EXPECT_TRUE(history.GetSenderUndoRedoFromID(gone) && history.Init());
    EXPECT_FALSE(history.GetSenderUndoRedoFromID(gone));
}

TEST_F(ProjectUndoRedoTest, AHistoryThatAnEditStartedIsModified)
{
    history.Release();
    EXPECT_TRUE(Edit() && history.GetCanUndoStep() == 0) << "the edit is part of the base";
    EXPECT_TRUE(history.IsModidfied());
    history.SetAsSaveStep();
    EXPECT_FALSE(history.IsModidfied());
    for (const bool restart : {true, false}) {
        Edit();
        if (restart)
            EXPECT_TRUE(history.SenderUndoRedoInit(&Sender()));
        else
            history.SenderUndoRedoRelease(Sender().GetId());
        EXPECT_TRUE(history.IsModidfied()) << "the change went with its history";
        EXPECT_TRUE(history.SenderUndoRedoInit(&Sender()));
        history.SetAsSaveStep();
        EXPECT_FALSE(history.IsModidfied());
    }
    EXPECT_TRUE(Edit() && history.NeedsSaving() && Undo(1) && !history.NeedsSaving());
    history.PrjModify();
    EXPECT_TRUE(history.NeedsSaving());
    history.SetAsSaveStep();
    EXPECT_TRUE(history.IsModidfied()) << "a marked change stays until Init";
    EXPECT_FALSE(history.NeedsSaving()) << "though it was saved";
    EXPECT_TRUE(Edit() && history.NeedsSaving());
    history.SenderUndoRedoRelease(Sender().GetId());
    EXPECT_TRUE(history.NeedsSaving()) << "the change went with its history";
    history.Init();
    EXPECT_FALSE(history.IsModidfied() || history.NeedsSaving());
}

TEST_F(ProjectUndoRedoTest, SendersBeyondTheSlotsOrWithoutIdHaveNoHistory)
{
    while (lookup.senders.size() <= CProjectUndoRedo::kSlotCount) {
        owned.push_back(std::make_unique<CSender>());
        lookup.senders.append(owned.back().get());
    }
    history.Init();
    EXPECT_FALSE(history.IsModidfied());
    EXPECT_FALSE(history.SenderUndoRedoInit(lookup.senders.last()) || history.SenderUndoRedoInit(nullptr));
    EXPECT_FALSE(history.AddOneStepToSender(CProjectUndoRedo::kSlotCount, Step::OperationClear));
    EXPECT_TRUE(history.IsModidfied()) << "an edit that no slot is left for";
    history.SetAsSaveStep();
    EXPECT_TRUE(history.IsModidfied()) << "nothing tells later edits of that sender from what was saved";
    history.SenderUndoRedoRelease(lookup.senders.takeAt(1)->GetId());
    EXPECT_TRUE(history.SenderUndoRedoInit(lookup.senders.last()));
    history.SetAsSaveStep();
    EXPECT_FALSE(history.IsModidfied());
    CSenderUndoRedo* own = history.GetSenderUndoRedoFromID(Sender().GetId());
    EXPECT_FALSE(own->AddStep(*lookup.senders.last(), Step::OperationClear)) << "not its sender";
    Sender().SetId(QUuid());
    EXPECT_TRUE(!Edit() && history.IsModidfied());
}
