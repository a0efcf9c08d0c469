#pragma once

#include <OrvanData/orvandata.h>

#include <orvantools/cabinetchain.h>

#include <QColor>
#include <QObject>
#include <QPolygonF>
#include <QRect>

#include <algorithm>
#include <vector>

/// What is drawn of a cabinet, apart from the cabinet itself: that may be gone while the picture stays.
struct SceneCabinet
{
    QRect place;     ///< canvas pixels, the bound of a turned one
    int number = -1; ///< place in the chain as stored, negative: none
    int turned = -1; ///< in ScenePort::corners, negative: not turned
    short cardColumns = 1;
    short cardRows = 1;
    bool selected = false;
};

/// What is drawn of a port.
struct ScenePort
{
    static constexpr int kBlock = 64;

    std::vector<SceneCabinet> cabinets; ///< the last lies on top
    std::vector<QPolygonF> corners;     ///< of turned cabinets
    std::vector<OrvanTools::ChainLink> chain;
    std::vector<QRect> blocks;     ///< around each kBlock cabinets that follow each other
    std::vector<QRect> links;      ///< around each kBlock links of the chain
    std::vector<QPolygonF> groups; ///< around the cabinets of each group, turned as they are
    QRect bound;
    qint64 pixels = 0; ///< of all cabinets
    bool visible = false;
    bool locked = false;

    /// Calls `found` with the place of each cabinet that meets the area.
    template <class Found> void Walk(const QRect& area, const Found& found) const
    {
        for (size_t block = 0; block < blocks.size(); ++block) {
            if (!blocks[block].intersects(area))
                continue;
            const size_t first = block * kBlock;
            const size_t last = std::min(first + kBlock, cabinets.size());
            for (size_t i = first; i < last; ++i) {
                if (cabinets[i].place.intersects(area))
                    found(i);
            }
        }
    }
    /// Calls `found` with both ends of each link of the chain that may cross the area. Where the numbers
    /// leave a gap there is none.
    template <class Found> void WalkLinks(const QRect& area, const Found& found) const
    {
        for (size_t block = 0; block < links.size(); ++block) {
            if (!links[block].intersects(area))
                continue;
            const size_t last = std::min((block + 1) * kBlock + 1, chain.size());
            for (size_t i = block * kBlock + 1; i < last; ++i) {
                const SceneCabinet& from = cabinets[static_cast<size_t>(chain[i - 1].cabinet)];
                const SceneCabinet& to = cabinets[static_cast<size_t>(chain[i].cabinet)];
                if (qint64(from.number) + 1 == to.number && (from.place | to.place).intersects(area))
                    found(from, to);
            }
        }
    }
};

/// Follows the current sender of the open document and keeps what the design view draws of it, by port. After
/// an edit only the ports that it changed are read again.
class SceneModel : public QObject
{
    Q_OBJECT

public:
    explicit SceneModel(QObject* parent = nullptr);

    const std::vector<ScenePort>& GetPorts() const { return m_ports; } ///< those in use
    QRect GetBound() const;                                            ///< of the cabinets shown
    QRect GetCanvas() const { return m_canvas; }                       ///< null: the sender has none
    int GetCurrentPort() const { return m_currentPort; }
    quint64 GetRevision() const { return m_revision; } ///< another one whenever something looks different

    static QPolygonF CornersOf(const CTile& tile); ///< canvas pixels, left top of the unturned one first
    static QColor ColorOf(int port) { return CConstantData::GetColorByPort(port); }

    void Take(const SDocumentChange& change);
    void Renew();             ///< all of it: another sender is current
    void RenewPort(int port); ///< edited, and not told yet
    void RenewPortStates();   ///< which are shown and locked, and which is current
    void RenewSelection();

signals:
    void Renewed();

private:
    void Read(int port);
    void ReadStates();
    void Tell();

    std::vector<ScenePort> m_ports;
    QRect m_canvas;
    int m_currentPort = 0;
    quint64 m_revision = 1;
};
