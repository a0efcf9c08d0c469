#pragma once

#include "common/export.h"
#include "monitor/monitorplace.h"

#include <QMetaType>

class QDebug;

enum ESenderWarning : quint32
{
    SenderWarningOffline = 1U << 0,
    SenderWarningNoVideo = 1U << 1,
    SenderWarningVideoUnmatch = 1U << 2,
    SenderWarningFreeze = 1U << 3,
    SenderWarningBlackout = 1U << 4,
    SenderWarningBrightnessZero = 1U << 5,
};

enum EPortWarning : quint32
{
    PortWarningCableError = 1U << 0,
    PortWarningSelfBackup = 1U << 1,    ///< the loop feeds the chain from its far end
    PortWarningReceiverCount = 1U << 2, ///< fewer receiving cards answer than are laid out
};

enum EFiberWarning : quint32
{
    FiberWarningNoLight = 1U << 0,
    FiberWarningBitErrors = 1U << 1,
};

enum EReceiverWarning : quint32
{
    ReceiverWarningOffline = 1U << 0,
    ReceiverWarningBitErrors = 1U << 1,
    ReceiverWarningTemperature = 1U << 2,
    ReceiverWarningHumidity = 1U << 3,
    ReceiverWarningSmoke = 1U << 4,
    ReceiverWarningFan = 1U << 5,
    ReceiverWarningCabinetDoor = 1U << 6,
    ReceiverWarningCable = 1U << 7,
    ReceiverWarningNoMonitorCard = 1U << 8,
    ReceiverWarningPower1 = 1U << 9,    ///< powers 2 to 5 follow
    ReceiverWarningVoltage1 = 1U << 14, ///< voltages 2 to 4 follow
};

/// Where a chain that is fed from both ends is broken: between two receiving cards that both answer.
struct SLoopbackError
{
    int backupPort = -1;    ///< port that feeds the far end, -1: no error
    int lastReceiver = -1;  ///< last receiving card fed from the port itself, -1: none
    int firstReceiver = -1; ///< first receiving card fed from the far end, -1: none
};

ORVANDATA_EXPORT bool operator==(const SLoopbackError& a, const SLoopbackError& b);

/// The warnings that stand, as flags of the enumerations above. No flags means no warning. A plain value.
class ORVANDATA_EXPORT CMonitorWarningData
{
public:
    bool operator==(const CMonitorWarningData& other) const;
    bool operator!=(const CMonitorWarningData& other) const { return !(*this == other); }

    void SetSenderWarning(unsigned int sender, quint32 flags) { m_warnings.Set({sender}, flags); }
    quint32 GetSenderWarning(unsigned int sender) const { return m_warnings.Get({sender}); }
    void SetPortWarning(unsigned int sender, int port, quint32 flags); ///< a negative port is ignored
    quint32 GetPortWarning(unsigned int sender, int port) const;
    void SetFiberWarning(unsigned int sender, int fiber, quint32 flags); ///< a negative fibre is ignored
    quint32 GetFiberWarning(unsigned int sender, int fiber) const { return m_fibers.Get({sender, fiber}); }
    void SetRcvWarning(unsigned int sender, int port, int receiver, quint32 flags); ///< negatives are ignored
    quint32 GetRcvWarning(unsigned int sender, int port, int receiver) const;

    void SetLoopbackError(unsigned int sender, int port, const SLoopbackError& error);
    SLoopbackError GetLoopbackError(unsigned int sender, int port) const;

    bool HasWarning() const;
    bool HasWarning(unsigned int sender) const;           ///< of the sender or anything on it
    bool HasWarning(unsigned int sender, int port) const; ///< of the port or a receiving card on it
    void ClearSender(unsigned int sender);                ///< and everything on it
    void SetToDefault();                                  ///< no warnings

private:
    MonitorPlaceMap<quint32> m_warnings;
    MonitorPlaceMap<quint32> m_fibers; ///< the place's port is the fibre
    MonitorPlaceMap<SLoopbackError> m_loopbackErrors;
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SLoopbackError& error);

Q_DECLARE_METATYPE(SLoopbackError)
Q_DECLARE_METATYPE(CMonitorWarningData)
