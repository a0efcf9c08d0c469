#include "layout/layoutlookup.h"

namespace {

LayoutLookup* g_installed = nullptr;

} // namespace

LayoutLookup* GetLayoutLookup()
{
    static LayoutLookup harmless;
    return g_installed ? g_installed : &harmless;
}

void SetLayoutLookup(LayoutLookup* lookup)
{
    g_installed = lookup;
}
