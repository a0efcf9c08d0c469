#pragma once

#include <OrvanData/orvandata.h>

#include <QList>

/// Copies of cabinets, with the groups that are whole among them. They are good when their cabinets are gone,
/// and for another document.
class CabinetCopies
{
public:
    void Take(const QList<CPort*>& ports); ///< what is selected there, in place of what was held
    int GetCount() const { return m_layout.GetTileSet()->GetCount(); }
    QRect GetBound() const { return m_layout.GetTileSet()->GetBound(); }
    QList<SMD5> GetTypes() const;
    /// Adds them, moved by that: selected and without numbers.
    void PutOn(CPort& port, const QPoint& by) const;

private:
    static void Append(CPortProject& to, const QList<CTileGroup*>& groups, const CTileSet& tiles);

    CPortProject m_layout;
};
