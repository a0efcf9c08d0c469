#include "monitor/monitorlookup.h"

namespace {

MonitorLookup* g_installed = nullptr;

} // namespace

MonitorLookup* GetMonitorLookup()
{
    static MonitorLookup harmless;
    return g_installed ? g_installed : &harmless;
}

void SetMonitorLookup(MonitorLookup* lookup)
{
    g_installed = lookup;
}
