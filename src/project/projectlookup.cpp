#include "project/projectlookup.h"

namespace {

ProjectLookup* g_installed = nullptr;

} // namespace

ProjectLookup* GetProjectLookup()
{
    static ProjectLookup harmless;
    return g_installed ? g_installed : &harmless;
}

void SetProjectLookup(ProjectLookup* lookup)
{
    g_installed = lookup;
}
