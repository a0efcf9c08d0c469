#include "settings/settingslookup.h"

namespace {

SettingsLookup* g_installed = nullptr;

} // namespace

SettingsLookup* GetSettingsLookup()
{
    static SettingsLookup harmless;
    return g_installed ? g_installed : &harmless;
}

void SetSettingsLookup(SettingsLookup* lookup)
{
    g_installed = lookup;
}
