#pragma once

#include "common/export.h"
#include "monitor/monitorplace.h"

#include <QMetaType>
#include <QString>

/// Which reading the monitoring view writes on the cabinets.
enum EMonitorRenderType : int
{
    MonitorRenderState = 0,
    MonitorRenderTemperature,
    MonitorRenderHumidity,
    MonitorRenderVoltage,
    MonitorRenderPower,
    MonitorRenderFan,
    MonitorRenderSmoke,
    MonitorRenderCabinetDoor,
    MonitorRenderBitErrors,
    MonitorRenderCable,
    MonitorRenderVersion,
};

/// What the monitoring view writes on each receiving card, one text for each kind of reading. A plain value.
class ORVANDATA_EXPORT CMonitorRcvShowData
{
public:
    bool operator==(const CMonitorRcvShowData& other) const { return m_texts == other.m_texts; }
    bool operator!=(const CMonitorRcvShowData& other) const { return !(*this == other); }

    void SetText(unsigned int sender, int port, int receiver, EMonitorRenderType type, const QString& text);
    QString GetText(unsigned int sender, int port, int receiver, EMonitorRenderType type) const;

    void ClearType(EMonitorRenderType type) { m_texts.remove(type); }
    void ClearSender(unsigned int sender);   ///< and everything on it
    void SetToDefault() { m_texts.clear(); } ///< no texts

private:
    QMap<int, MonitorPlaceMap<QString>> m_texts; ///< by render type; a type without texts has no entry
};

Q_DECLARE_METATYPE(CMonitorRcvShowData)
