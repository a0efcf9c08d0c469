#pragma once

#include "common/export.h"
#include "monitor/monitorplace.h"

#include <QStringList>

/// The texts that explain the standing warnings to the user, by sender, port and receiving card. Port and
/// receiver -1 name the sender or the port itself. A plain value.
class ORVANDATA_EXPORT CMonitorTipsData
{
public:
    bool operator==(const CMonitorTipsData& other) const;
    bool operator!=(const CMonitorTipsData& other) const { return !(*this == other); }

    void SetTip(unsigned int sender, int port, int receiver, const QString& text); ///< empty: no tip
    QString GetTip(unsigned int sender, int port, int receiver) const;
    QStringList GetAllTips() const; ///< by sender, port and receiver; a sender's own before its ports'

    void ClearSender(unsigned int sender); ///< and everything on it
    void SetToDefault();                   ///< no tips

private:
    MonitorPlaceMap<QString> m_tips;
};
