#pragma once

/// What monitoring asks of the settings: the read-only state of the interfaces, numbered as EInterfaceDlg.
/// Every question has a harmless answer, which stands while nothing is installed.
class MonitorLookup
{
public:
    virtual ~MonitorLookup() = default;

    virtual bool IsInterfaceReadOnly(int /*interfaceIndex*/) const { return false; }
    virtual void SetInterfaceReadOnly(int /*interfaceIndex*/, bool /*readOnly*/) {}
};

/// The installed lookup, or one that gives the harmless answers. Never null.
MonitorLookup* GetMonitorLookup();

/// [keep] Installs a lookup, null for none; the caller removes it before destroying it. Not while other
/// threads use the monitoring data.
void SetMonitorLookup(MonitorLookup* lookup);
