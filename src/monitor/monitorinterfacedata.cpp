#include "monitor/monitorinterfacedata.h"

#include "common/debugline.h"

#include <algorithm>
#include <iterator>
#include <tuple>

bool operator==(const SVideoInput& a, const SVideoInput& b)
{
    return a.slot == b.slot && a.sourceType == b.sourceType && a.sourceIndex == b.sourceIndex
           && a.enable == b.enable;
}

bool operator==(const SSenderSetting& a, const SSenderSetting& b)
{
    return a.videoUnmatch == b.videoUnmatch && a.freeze == b.freeze && a.blackout == b.blackout
           && a.brightnessZero == b.brightnessZero && a.videoInputs == b.videoInputs;
}

bool operator==(const SLineSetting& a, const SLineSetting& b)
{
    return a.cableError == b.cableError && a.selfBackup == b.selfBackup;
}

bool operator==(const SVoltageSetting& a, const SVoltageSetting& b)
{
    return std::tie(a.enable, a.minimum, a.maximum) == std::tie(b.enable, b.minimum, b.maximum);
}

bool operator==(const SRecevierSetting& a, const SRecevierSetting& b)
{
    const auto scalars = [](const SRecevierSetting& s) {
        return std::tie(s.temperatureEnable, s.temperatureLimit, s.humidityEnable, s.humidityLimit, s.smoke,
                        s.fan, s.cabinetDoor, s.cableDetection);
    };
    return scalars(a) == scalars(b) && std::equal(std::begin(a.power), std::end(a.power), b.power)
           && std::equal(std::begin(a.voltage), std::end(a.voltage), b.voltage);
}

bool operator==(const SMailReceiver& a, const SMailReceiver& b)
{
    return a.address == b.address && a.name == b.name;
}

bool operator==(const SEmailSetting& a, const SEmailSetting& b)
{
    const auto fields = [](const SEmailSetting& s) {
        return std::tie(s.enable, s.notifyRecovery, s.errorTimes, s.sslEncryption, s.serverPort,
                        s.senderAddress, s.senderPassword, s.server, s.receivers);
    };
    return fields(a) == fields(b);
}

bool CMonitorInterfaceData::operator==(const CMonitorInterfaceData& other) const
{
    return m_intervalTime == other.m_intervalTime && m_sender == other.m_sender && m_line == other.m_line
           && m_receiver == other.m_receiver && m_mail == other.m_mail;
}

void CMonitorInterfaceData::SetToDefault()
{
    *this = CMonitorInterfaceData();
}

void CMonitorInterfaceData::SetToDefaultForVideo()
{
    SetToDefault();
    m_line.selfBackup = false;
    m_receiver.temperatureEnable = 0;
    m_receiver.humidityEnable = 0;
    std::fill(std::begin(m_receiver.power), std::end(m_receiver.power), false);
}

void CMonitorInterfaceData::SetIntervalTime(int seconds)
{
    m_intervalTime = seconds < 1 ? kDefaultInterval : seconds;
}

QDebug operator<<(QDebug debug, const SVideoInput& input)
{
    return DebugLine(debug, "SVideoInput(slot ", input.slot, ", source ", input.sourceType, ':',
                     input.sourceIndex, input.enable ? ", watched)" : ")");
}
