#pragma once

#include "common/export.h"
#include "monitor/monitorplace.h"

#include <QMetaType>
#include <QStringList>

/// The texts that explain the standing warnings to the user, by sender, port and receiving card. Port and
/// receiver -1 name the sender or the port itself. A plain value.
class ORVANDATA_EXPORT CMonitorTipsData
{
public:
    bool operator==(const CMonitorTipsData& other) const { return m_tips == other.m_tips; }
    bool operator!=(const CMonitorTipsData& other) const { return !(*this == other); }

    /// An empty text: no tip.
    void SetTip(unsigned int sender, int port, int receiver, const QString& text)
    {
        m_tips.Set({sender, port, receiver}, text);
    }
    QString GetTip(unsigned int sender, int port, int receiver) const
    {
        return m_tips.Get({sender, port, receiver});
    }
    /// By sender, port and receiver; a sender's own before its ports'.
    QStringList GetAllTips() const { return m_tips.Values(); }

    void ClearSender(unsigned int sender) { m_tips.ClearBelow({sender}); } ///< and everything on it
    void SetToDefault() { m_tips.Clear(); }                                ///< no tips

private:
    MonitorPlaceMap<QString> m_tips;
};

Q_DECLARE_METATYPE(CMonitorTipsData)
