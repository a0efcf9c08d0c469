#pragma once

#include "common/export.h"
#include "monitor/monitorplace.h"

#include <QMetaType>
#include <QSize>
#include <QString>
#include <QVector>

#include <memory>

/// What a poll of one sender found.
struct SDetectSenderData
{
    bool online = false;
    int deviceType = 0;
    QString firmwareVersion;
    QString serialNumber;

    bool videoPresent = false;
    bool videoUnmatch = false; ///< the signal's size is not the canvas size
    QSize videoSize;           ///< pixels
    double videoFrequency = 0; ///< Hz
    bool freeze = false;
    bool blackout = false;
    int brightness = 0; ///< 0 to 255

    double temperature = 0; ///< degrees Celsius
    int fanSpeed = 0;       ///< revolutions a minute
    quint32 portLinks = 0;  ///< bit n: a receiving card answers on port n
    quint32 fiberLinks = 0; ///< bit n: light on fibre n
    int receiverCount = 0;  ///< receiving cards that answered, all ports
};

/// What a poll of one receiving card found. The readings from `hasMonitorCard` on need a
/// monitoring card.
struct SDetectReceiverData
{
    static constexpr int kPowers = 5;
    static constexpr int kVoltages = 4;
    static constexpr int kFans = 4;

    SMonitorPlace place; ///< where the card was found, set by CMonitorDetectData

    bool online = false;
    QString firmwareVersion;
    QString hardwareVersion;
    quint64 runningTime = 0; ///< seconds since it was switched on

    bool mainLink = false;
    bool backupLink = false;
    quint64 receivedPackets = 0;
    quint64 bitErrors = 0;       ///< on the main link
    quint64 backupBitErrors = 0; ///< on the backup link
    quint32 cableErrors = 0;     ///< bit n: flat cable n to the modules is bad
    double cardTemperature = 0;  ///< degrees Celsius, measured on the card
    double cardVoltage = 0;      ///< volts, measured on the card

    bool hasMonitorCard = false;
    QString monitorVersion;
    double temperature = 0; ///< degrees Celsius, in the cabinet
    double humidity = 0;    ///< percent
    bool smoke = false;
    bool doorOpen = false;
    int fanSpeed[kFans] = {};       ///< revolutions a minute, 0: standing or not there
    bool power[kPowers] = {};       ///< whether that power supply delivers
    double voltage[kVoltages] = {}; ///< volts
};

/// The values that monitoring detected last. A plain value. Copies share the records, which are never written
/// to, so that copying is cheap. A record that was handed out stays until it is replaced or emptied here.
class ORVANDATA_EXPORT CMonitorDetectData
{
public:
    void SetToDefault(); ///< empties everything

    // senders
    void AddSenderData(unsigned int sender, const SDetectSenderData* data); ///< copied; null is ignored
    const SDetectSenderData* GetSenderData(unsigned int sender) const;      ///< [ref] null: none

    // receiving cards
    /// Copied. Replaces a record of the same place. Null and negative numbers are ignored.
    void AddRcvData(unsigned int sender, int port, int receiver, const SDetectReceiverData* data);
    const SDetectReceiverData* GetRcvData(unsigned int sender, int port, int receiver) const; ///< [ref]
    int GetRcvDataCount() const { return m_receivers.size(); }
    int GetRcvDataCount(unsigned int sender, int port) const { return m_portCounts.value({sender, port}); }
    /// [ref] Of all receiving cards, in the order in which they were first detected.
    const SDetectReceiverData* GetRcvDataByIndex(int index) const;

    // wiring
    void SetStarLink(bool star) { m_starLink = star; } ///< receiving cards hang on hubs instead of in a chain
    bool IsStarLink() const { return m_starLink; }

private:
    QHash<unsigned int, std::shared_ptr<const SDetectSenderData>> m_senders;
    QVector<std::shared_ptr<const SDetectReceiverData>> m_receivers;
    QHash<SMonitorPlace, int> m_receiverIndex; ///< into m_receivers
    QHash<SMonitorPlace, int> m_portCounts;    ///< receiving cards by port
    bool m_starLink = false;
};

Q_DECLARE_METATYPE(SDetectSenderData)
Q_DECLARE_METATYPE(SDetectReceiverData)
Q_DECLARE_METATYPE(CMonitorDetectData)
