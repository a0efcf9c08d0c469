#include "scenemodel.h"

#include "groupbounds.h"

#include <orvantools/portload.h>
#include <orvantools/wallarea.h>

namespace {

SceneCabinet Read(const CTile& tile, std::vector<QPolygonF>& corners)
{
    SceneCabinet cabinet;
    cabinet.place = tile.GetBound();
    cabinet.number = tile.GetConnectionIndex();
    cabinet.selected = tile.IsSelected(InterfaceDesign);
    if (tile.IsMultiRcvTile()) {
        const QSize cards =
            tile.GetMultiRcvsSize().boundedTo(QSize(kMaxReceiversInTile, kMaxReceiversInTile));
        cabinet.cardColumns = static_cast<short>(cards.width());
        cabinet.cardRows = static_cast<short>(cards.height());
    }
    if (tile.IsTileRotated()) {
        cabinet.turned = static_cast<int>(corners.size());
        corners.push_back(SceneModel::CornersOf(tile));
    }
    return cabinet;
}

/// Around each kBlock links, also those over a gap.
std::vector<QRect> LinksOf(const ScenePort& port)
{
    std::vector<QRect> links;
    for (size_t i = 1; i < port.chain.size(); ++i) {
        if ((i - 1) % ScenePort::kBlock == 0)
            links.push_back(port.cabinets[static_cast<size_t>(port.chain[i - 1].cabinet)].place);
        links.back() |= port.cabinets[static_cast<size_t>(port.chain[i].cabinet)].place;
    }
    return links;
}

} // namespace

SceneModel::SceneModel(QObject* parent) : QObject(parent)
{}

QPolygonF SceneModel::CornersOf(const CTile& tile)
{
    CPointEx<double> points[4];
    tile.GetRotateArea(points);
    QPolygonF polygon;
    for (const CPointEx<double>& point : points)
        polygon.append(QPointF(point.x, point.y));
    return polygon;
}

QRect SceneModel::GetBound() const
{
    QRect bound;
    for (const ScenePort& port : m_ports) {
        if (port.visible)
            bound |= port.bound;
    }
    return bound;
}

void SceneModel::Take(const SDocumentChange& change)
{
    if (change.documentReplaced || change.senders || change.properties) {
        Renew();
        return;
    }
    if (change.ports.isEmpty())
        return;
    const int sender = GetProjectData()->GetCurSenderIndex();
    for (const SPortPlace& place : change.ports) {
        if (place.sender == sender && place.port < static_cast<int>(m_ports.size()))
            Read(place.port);
    }
    ReadStates();
    Tell();
}

void SceneModel::Renew()
{
    const CSender* sender = GetProjectData()->GetCurrentSender();
    m_ports.clear();
    m_ports.resize(sender ? static_cast<size_t>(sender->GetPortCount()) : 0);
    for (size_t port = 0; port < m_ports.size(); ++port)
        Read(static_cast<int>(port));
    ReadStates();
    Tell();
}

void SceneModel::RenewPort(int port)
{
    if (port < 0 || port >= static_cast<int>(m_ports.size()))
        return;
    Read(port);
    Tell();
}

void SceneModel::RenewPortStates()
{
    ReadStates();
    Tell();
}

void SceneModel::RenewSelection()
{
    const CSender* sender = GetProjectData()->GetCurrentSender();
    for (size_t i = 0; i < m_ports.size(); ++i) {
        std::vector<SceneCabinet>& cabinets = m_ports[i].cabinets;
        const CTileSet* tiles = sender ? &sender->GetPort(static_cast<int>(i))->GetTileSet() : nullptr;
        if (!tiles || tiles->GetCount() != static_cast<int>(cabinets.size()))
            continue; // a backup port, or cabinets that came or went and are not told yet
        auto cabinet = cabinets.begin();
        for (const CTile* tile : *tiles)
            (cabinet++)->selected = tile->IsSelected(InterfaceDesign);
    }
    Tell();
}

/// A backup port shows what its source shows, and that is drawn already.
void SceneModel::Read(int index)
{
    const CPort& port = *GetProjectData()->GetCurrentSender()->GetPort(index);
    ScenePort scene;
    if (!port.IsBackupDest()) {
        GroupBounds groups(port.GetTileGroupSet());
        scene.cabinets.reserve(static_cast<size_t>(port.GetTileSet().GetCount()));
        for (const CTile* tile : port.GetTileSet()) {
            const SceneCabinet cabinet = ::Read(*tile, scene.corners);
            scene.cabinets.push_back(cabinet);
            groups.Add(tile->GetGroupId(), cabinet.place,
                       cabinet.turned < 0 ? nullptr : &scene.corners.back());
            scene.pixels += OrvanTools::PixelsOf(*tile);
        }
        scene.groups = groups.GetPolygons();
        scene.chain = OrvanTools::ChainOf(port.GetTileSet());
    }
    scene.links = LinksOf(scene);
    for (size_t i = 0; i < scene.cabinets.size(); ++i) {
        if (i % ScenePort::kBlock == 0)
            scene.blocks.emplace_back();
        scene.blocks.back() |= scene.cabinets[i].place;
    }
    for (const QRect& block : scene.blocks)
        scene.bound |= block;
    m_ports[static_cast<size_t>(index)] = std::move(scene);
}

void SceneModel::ReadStates()
{
    const CSender* sender = GetProjectData()->GetCurrentSender();
    m_canvas = sender ? OrvanTools::CanvasOf(*sender) : QRect();
    m_currentPort = sender ? sender->GetRecentPortIndex() : 0;
    for (size_t i = 0; sender && i < m_ports.size(); ++i) {
        const CPort& port = *sender->GetPort(static_cast<int>(i));
        m_ports[i].visible = port.IsVisible();
        m_ports[i].locked = port.IsFlagLock();
    }
}

void SceneModel::Tell()
{
    ++m_revision;
    emit Renewed();
}
