#pragma once

#include "common/export.h"

#include <QList>
#include <QMetaType>
#include <QString>

class QDebug;

/// One video input of a processor, and whether monitoring watches it.
struct SVideoInput
{
    int slot = 0;
    int sourceType = 0;
    int sourceIndex = 0;
    bool enable = false;
};

/// What to watch on senders.
struct SSenderSetting
{
    bool videoUnmatch = true;
    bool freeze = true;
    bool blackout = true;
    bool brightnessZero = true;
    QList<SVideoInput> videoInputs;
};

/// What to watch on the lines between senders and receiving cards.
struct SLineSetting
{
    bool cableError = false;
    bool selfBackup = true;
};

/// Limits of one supply voltage of a receiving card.
struct SVoltageSetting
{
    int enable = 0;       ///< 0 or 1
    double minimum = 5.0; ///< volts
    double maximum = 12.0;
};

/// What to watch on receiving cards.
struct SRecevierSetting
{
    static constexpr int kPowers = 5;
    static constexpr int kVoltages = 4;

    int temperatureEnable = 1; ///< 0 or 1
    int temperatureLimit = 60; ///< degrees Celsius
    int humidityEnable = 1;    ///< 0 or 1
    int humidityLimit = 85;    ///< percent
    bool smoke = false;
    bool fan = false;
    bool cabinetDoor = false;
    bool power[kPowers] = {true, true, true, true, true};
    SVoltageSetting voltage[kVoltages];
    int cableDetection = 0; ///< 0 or 1
};

struct SMailReceiver
{
    QString address;
    QString name;
};

/// Where warning mails come from and go to.
struct SEmailSetting
{
    bool enable = false;
    bool notifyRecovery = true; ///< also tell when a warning is over; not kept in files
    int errorTimes = 3;         ///< polls in a row that must fail before a mail is sent
    int sslEncryption = 1;      ///< 0 or 1
    int serverPort = 465;
    QString senderAddress;
    QString senderPassword;
    QString server;
    QList<SMailReceiver> receivers;
};

ORVANDATA_EXPORT bool operator==(const SVideoInput& a, const SVideoInput& b);
ORVANDATA_EXPORT bool operator==(const SSenderSetting& a, const SSenderSetting& b);
ORVANDATA_EXPORT bool operator==(const SLineSetting& a, const SLineSetting& b);
ORVANDATA_EXPORT bool operator==(const SVoltageSetting& a, const SVoltageSetting& b);
ORVANDATA_EXPORT bool operator==(const SRecevierSetting& a, const SRecevierSetting& b);
ORVANDATA_EXPORT bool operator==(const SMailReceiver& a, const SMailReceiver& b);
ORVANDATA_EXPORT bool operator==(const SEmailSetting& a, const SEmailSetting& b);

/// The monitoring settings: what to watch, the limits, and who is told. A plain value.
class ORVANDATA_EXPORT CMonitorInterfaceData
{
public:
    bool operator==(const CMonitorInterfaceData& other) const;
    bool operator!=(const CMonitorInterfaceData& other) const { return !(*this == other); }

    void SetToDefault();
    void SetToDefaultForVideo(); ///< for video processors: no receiving card is watched

    int GetIntervalTime() const { return m_intervalTime; } ///< seconds between two polls
    void SetIntervalTime(int seconds);                     ///< below 1 becomes 10

    const SSenderSetting& GetSenderSetting() const { return m_sender; }
    void SetSenderSetting(const SSenderSetting& setting) { m_sender = setting; }
    const SLineSetting& GetLineSetting() const { return m_line; }
    void SetLineSetting(const SLineSetting& setting) { m_line = setting; }
    const SRecevierSetting& GetReceiverSetting() const { return m_receiver; }
    void SetReceiverSetting(const SRecevierSetting& setting) { m_receiver = setting; }
    const SEmailSetting& GetMailSetting() const { return m_mail; }
    void SetMailSetting(const SEmailSetting& setting) { m_mail = setting; }

private:
    static constexpr int kDefaultInterval = 10;

    int m_intervalTime = kDefaultInterval;
    SSenderSetting m_sender;
    SLineSetting m_line;
    SRecevierSetting m_receiver;
    SEmailSetting m_mail;
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SVideoInput& input);

Q_DECLARE_METATYPE(SVideoInput)
Q_DECLARE_METATYPE(SMailReceiver)
Q_DECLARE_METATYPE(CMonitorInterfaceData)
