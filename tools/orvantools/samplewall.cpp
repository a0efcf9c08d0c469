#include "orvantools/samplewall.h"

#include "orvantools/newproject.h"
#include "orvantools/projectjson.h"

#include <QFile>
#include <QJsonArray>

namespace OrvanTools {

namespace {

// Ports of the sample, counted from 0.
constexpr int kPlainPort = 0;
constexpr int kMultiPort = 1;
constexpr int kTurnedPort = 2;
constexpr int kBackupPort = 3;
constexpr double kTurn = 15; ///< degrees

CTileSet& TilesOf(CSender& sender, int port)
{
    return sender.GetPort(port)->GetTileSet();
}

CProjectUndoRedo& History()
{
    return *GetRuntimeData()->GetProjectUndoRedo();
}

/// Writes a product file and gives the type it stands for.
SMD5 WriteProduct(const QString& name, const QByteArray& content)
{
    const QString path = CProductDirectorySet::GetRootDir() + name;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return {};
    file.close();
    return CConstantData::GetMD5FromFile(path);
}

/// Name and path of the first value that differs.
bool FindDifference(const QJsonValue& a, const QJsonValue& b, const QString& path, QString* difference)
{
    if (a == b)
        return false;
    if (a.isObject() && b.isObject()) {
        const QJsonObject first = a.toObject();
        for (const QString& key : first.keys()) {
            if (FindDifference(first[key], b.toObject()[key], path + QLatin1Char('/') + key, difference))
                return true;
        }
    }
    if (a.isArray() && b.isArray() && a.toArray().size() == b.toArray().size()) {
        const QJsonArray first = a.toArray();
        for (int i = 0; i < first.size(); ++i) {
            const QString below = path + QLatin1Char('/') + QString::number(i);
            if (FindDifference(first[i], b.toArray()[i], below, difference))
                return true;
        }
    }
    *difference = path;
    return true;
}

} // namespace

SampleWall::SampleWall(Tell tell) : m_tell(std::move(tell))
{}

bool SampleWall::Build()
{
    return WriteProducts() && AddSender() && PlaceBlocks() && NumberPorts() && GroupAndRotate()
           && UndoAndRedo() && FillForm();
}

bool SampleWall::Done(bool well, const QString& what)
{
    if (well)
        m_tell(what);
    else
        m_fault = QStringLiteral("this step failed: ") + what;
    return well;
}

bool SampleWall::Record(CProjectUndoRedo::Type type)
{
    return History().AddOneStep(type);
}

bool SampleWall::WriteProducts()
{
    m_plain = WriteProduct(QStringLiteral("sample-A128.rcvbp"), "cabinet of one receiving card\n");
    m_multi = WriteProduct(QStringLiteral("sample-B256.rcvbp"), "cabinet of four receiving cards\n");
    const int found = GetRuntimeData()->GetProductDirectorySet()->LoadProductInfo();
    return Done(!m_plain.IsNull() && !m_multi.IsNull() && found >= 2,
                QStringLiteral("wrote two product files; the product library now has %1").arg(found));
}

bool SampleWall::AddSender()
{
    GetProjectData()->SetToDefault();
    m_sender = GetProjectData()->NewSender();
    m_sender->SetSenderName(QStringLiteral("Sample wall 示例"));
    m_sender->SetCanvasSize(QSize(1920, 1080));
    m_sender->SetOffset(QSize(0, 0));
    History().Init();
    return Done(GetProjectData()->GetCurrentSender() == m_sender && m_sender->GetPortCount() == 4,
                QStringLiteral("added a sender with 4 ports and a canvas of 1920x1080"));
}

bool SampleWall::Place(int port, const SMD5& type, const QRect& grid, const QSize& cabinet,
                       const QSize& receivers)
{
    SAddTileInfo block;
    block.senderId = m_sender->GetId();
    block.portIndex = port;
    block.type = type;
    block.left = grid.left();
    block.top = grid.top();
    block.columns = grid.width();
    block.rows = grid.height();
    block.width = cabinet.width();
    block.height = cabinet.height();
    m_sender->SetRecentPortIndex(port);
    return block.SetCards(receivers, AutoNumberColumnsTopLeft, false)
           && m_sender->GetPort(port)->GetPortProject()->AddTile(block)
           && Record(CSenderRecordItem::OperationAddTiles);
}

bool SampleWall::PlaceBlocks()
{
    const QSize plain(128, 128);
    const QSize one(1, 1);
    return Done(Place(kPlainPort, m_plain, QRect(0, 0, 5, 4), plain, one),
                QStringLiteral("port 1: placed 5x4 cabinets of 128x128"))
           && Done(Place(kMultiPort, m_multi, QRect(640, 0, 2, 4), QSize(256, 128), QSize(2, 2)),
                   QStringLiteral("port 2: placed 2x4 cabinets of 256x128 with four receiving cards each"))
           && Done(Place(kTurnedPort, m_plain, QRect(1300, 300, 3, 2), plain, one)
                       && Place(kTurnedPort, m_plain, QRect(1300, 556, 3, 1), plain, one),
                   QStringLiteral("port 3: placed two blocks, 3x2 and 3x1 cabinets"))
           && Done(m_sender->GetPort(kBackupPort)->SetBeBackupDest(m_sender->GetId(), kPlainPort),
                   QStringLiteral("port 4: made it the backup of port 1"));
}

bool SampleWall::GroupAndRotate()
{
    CPortProject& layout = *m_sender->GetPort(kTurnedPort)->GetPortProject();
    CTileGroupSet& groups = *layout.GetTileGroupSet();
    auto* whole = new CTileGroup;
    while (CTileGroup* part = groups.RemoveDirectGroup(0)) {
        part->SetParentGroupID(whole->GetID());
        whole->GetSubGroupSet()->AddGroup(part, true);
    }
    groups.AddGroup(whole, true);
    const bool grouped = whole->GetSubGroupCount() == 2 && Record(CSenderRecordItem::OperationGroup);
    if (!Done(grouped, QStringLiteral("port 3: joined both blocks to one group")))
        return false;

    GetConfigData()->SetEnableRotate(true);
    CTileSet tiles;
    layout.GetAllTileSetInFirstGroup(tiles, whole->GetID());
    const QRect bound = tiles.GetBound(false, QSize());
    SRotateParam record;
    record.rotated = true;
    record.centerX = bound.left() + bound.width() * 0.5;
    record.centerY = bound.top() + bound.height() * 0.5;
    record.leftTopX = bound.left();
    record.leftTopY = bound.top();
    record.width = bound.width();
    record.height = bound.height();
    record.angle = kTurn;
    layout.SetTileGroupRotateParam(&record, tiles, kTurn);
    return Done(GetProjectData()->HasTileRotated() && Record(CSenderRecordItem::OperationRotate),
                QStringLiteral("port 3: turned the group by %1 degrees").arg(kTurn));
}

bool SampleWall::NumberPorts()
{
    const struct
    {
        int port;
        EnAutoNumberType pattern;
        const char* text;
    } orders[] = {
        {kPlainPort, AutoNumberRowsTopLeft, "by rows from the top left"},
        {kMultiPort, AutoNumberColumnsBottomRight, "by columns from the bottom right"},
        {kTurnedPort, AutoNumberRowsBottomLeft, "by rows from the bottom left"},
    };
    for (const auto& order : orders) {
        CTileSet& tiles = TilesOf(*m_sender, order.port);
        m_sender->SetRecentPortIndex(order.port);
        const bool numbered = tiles.AutoConnection(order.pattern, 0)
                              && Record(CSenderRecordItem::OperationAutoConnect)
                              && tiles.GetEndIndexTile()->GetConnectionIndex() == tiles.GetCount() - 1;
        if (!Done(numbered, QStringLiteral("port %1: numbered %2 cabinets %3, %4 receiving cards")
                                .arg(order.port + 1)
                                .arg(tiles.GetCount())
                                .arg(QLatin1String(order.text))
                                .arg(tiles.GetRcvCount())))
            return false;
    }
    return true;
}

bool SampleWall::UndoAndRedo()
{
    CProjectUndoRedo& history = History();
    const int steps = history.GetCanUndoStep();
    const QJsonObject before = DescribeProject(*GetProjectData(), GetMonitorData()->GetInterfaceData(), true);
    const bool undone =
        history.Undo(steps, nullptr, nullptr) && TilesOf(*m_sender, kPlainPort).GetCount() == 0;
    if (!Done(undone, QStringLiteral("took back all %1 recorded steps: the ports are empty").arg(steps)))
        return false;
    const bool redone =
        history.Redo(steps, nullptr, nullptr)
        && before == DescribeProject(*GetProjectData(), GetMonitorData()->GetInterfaceData(), true);
    return Done(redone, QStringLiteral("brought them back: all is as it was"));
}

bool SampleWall::FillForm()
{
    SPrintFormData& form = *GetProjectData()->GetPrintSetData();
    form.projectName = {true, QStringLiteral("Sample wall 示例屏幕")};
    form.designer = {true, QStringLiteral("orvan demo")};
    for (int i = 0; i < m_sender->GetPortCount(); ++i)
        m_sender->GetPort(i)->GetPortProject()->CancelAllSelected(); // a selection is not saved
    return Done(true, QStringLiteral("filled in the printed form and let go of the selection"));
}

bool IsSameProject(const CProjectData& a, const CProjectData& b, QString* difference)
{
    const CMonitorInterfaceData monitor = GetMonitorData()->GetInterfaceData();
    if (FindDifference(DescribeProject(a, monitor, true), DescribeProject(b, monitor, true), QString(),
                       difference))
        return false;
    for (int s = 0; s < a.GetSenderCount(); ++s) {
        for (int p = 0; p < a.GetSender(s)->GetPortCount(); ++p) {
            if (!a.GetSender(s)->GetPort(p)->BeSameAs(*b.GetSender(s)->GetPort(p))) {
                *difference = a.GetPortDescription(s, p);
                return false;
            }
        }
    }
    return true;
}

} // namespace OrvanTools
