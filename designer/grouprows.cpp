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
    }

    void Show(const CTileGroupSet& groups, QTreeWidgetItem& row)
    {
        const int all = Sum(groups).second;
        Fill(groups, row);
        if (all > kMostListed)
            Put(row, row.childCount(), tr("… and %1 more groups").arg(all - kMostListed), QUuid());
    }

private:
    /// The cabinets in all of these, and the number of groups. Counts those of a group with the ones below
    /// it.
    QPair<int, int> Sum(const CTileGroupSet& groups)
    {
        QPair<int, int> sum;
        for (int i = 0; i < groups.GetDirectCount(); ++i) {
            const CTileGroup& group = *groups.GetDirectGroupByDirIndex(i);
            const QPair<int, int> below = Sum(*group.GetSubGroupSet());
            m_counts[group.GetID()] += below.first;
            sum.first += m_counts[group.GetID()];
            sum.second += 1 + below.second;
        }
        return sum;
    }

    void Fill(const CTileGroupSet& groups, QTreeWidgetItem& row)
    {
        int place = 0;
        for (; place < groups.GetDirectCount() && m_listed < kMostListed; ++place) {
            const CTileGroup& group = *groups.GetDirectGroupByDirIndex(place);
            ++m_listed;
            Fill(*group.GetSubGroupSet(),
                 Put(row, place, tr("Group of %1 cabinets").arg(m_counts.value(group.GetID())),
                     group.GetID()));
        }
        while (row.childCount() > place)
            delete row.takeChild(row.childCount() - 1);
    }

    static QTreeWidgetItem& Put(QTreeWidgetItem& row, int place, const QString& text, const QUuid& id)
    {
        QTreeWidgetItem* item = place < row.childCount() ? row.child(place) : new QTreeWidgetItem(&row);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setFirstColumnSpanned(true);
        item->setText(0, text);
        item->setToolTip(0, id.isNull() ? QString() : tr("A click or Return selects its cabinets"));
        item->setData(0, Qt::UserRole, id);
        return *item;
    }

    QHash<QUuid, int> m_counts; ///< cabinets
    int m_listed = 0;
};

} // namespace

void ShowGroups(const CPort& port, QTreeWidgetItem& row)
{
    GroupRows(port).Show(port.GetTileGroupSet(), row);
}
