#pragma once

#include "common/seam.h"

/// What monitoring asks of the settings: the read-only state of the interfaces, numbered as EInterfaceDlg.
/// Every question has a harmless answer, which stands while nothing is installed.
class MonitorLookup
{
public:
    virtual ~MonitorLookup() = default;

    virtual bool IsInterfaceReadOnly(int /*interfaceIndex*/) const { return false; }
    virtual void SetInterfaceReadOnly(int /*interfaceIndex*/, bool /*readOnly*/) {}
};

inline MonitorLookup* GetMonitorLookup()
{
    return Seam<MonitorLookup>::Get();
}

inline void SetMonitorLookup(MonitorLookup* lookup)
{
    Seam<MonitorLookup>::Install(lookup);
}
