#include "grouprows.h"

#include <OrvanData/orvandata.h>

#include <QCoreApplication>
#include <QHash>
#include <QTreeWidgetItem>

namespace {

constexpr int kMostListed = 200; ///< of a port

class GroupRows
{
    Q_DECLARE_TR_FUNCTIONS(GroupRows)

public:
    explicit GroupRows(const CPort& port)
    {
        for (const CTile* tile : port.GetTileSet())
            ++m_counts[tile->GetGroupId()];
        for (const CTileGroup* group : Level(port.GetTileGroupSet()))
            Sum(*group);
    }

    void Show(const CPort& port, QTreeWidgetItem& row)
    {
        Fill(port.GetTileGroupSet(), row);
        if (m_groups <= kMostListed)
            return;
        auto* more = new QTreeWidgetItem(&row, {tr("… and %1 more groups").arg(m_groups - kMostListed)});
        more->setFlags(Qt::ItemIsEnabled);
        more->setFirstColumnSpanned(true);
    }

private:
    static QList<const CTileGroup*> Level(const CTileGroupSet& groups)
    {
        QList<const CTileGroup*> level;
        for (int i = 0; i < groups.GetDirectCount(); ++i)
            level.append(groups.GetDirectGroupByDirIndex(i));
        return level;
    }

    /// Adds what the groups below hold.
    int Sum(const CTileGroup& group)
    {
        ++m_groups;
        int count = m_counts.value(group.GetID());
        for (const CTileGroup* below : Level(*group.GetSubGroupSet()))
            count += Sum(*below);
        return m_counts[group.GetID()] = count;
    }

    void Fill(const CTileGroupSet& groups, QTreeWidgetItem& row)
    {
        int place = 0;
        for (const CTileGroup* group : Level(groups)) {
            if (m_listed == kMostListed)
                break;
            ++m_listed;
            QTreeWidgetItem* item = place < row.childCount() ? row.child(place) : new QTreeWidgetItem(&row);
            ++place;
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            item->setFirstColumnSpanned(true);
            item->setText(0, tr("Group of %1 cabinets").arg(m_counts.value(group->GetID())));
            item->setToolTip(0, tr("A click or Return selects its cabinets"));
            item->setData(0, Qt::UserRole, group->GetID());
            Fill(*group->GetSubGroupSet(), *item);
        }
        while (row.childCount() > place)
            delete row.takeChild(row.childCount() - 1);
    }

    QHash<QUuid, int> m_counts; ///< cabinets
    int m_groups = 0;
    int m_listed = 0;
};

} // namespace

void ShowGroups(const CPort& port, QTreeWidgetItem& row)
{
    GroupRows(port).Show(port, row);
}
