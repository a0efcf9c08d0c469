// The list of addresses that a user named.
#include "fuzzing.h"
#include "settings/specifiediplist.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString path = WriteInput(FreshFolder(), "SpecifiedIPs.txt", content);
    SpecifiedIpList list;
    if (!list.Load(path))
        return 0;
    const QStringList addresses = list.Addresses();
    list.Outside({{0xC0A80101u, 0xFFFFFF00u}});
    Demand(list.Save() && list.Load(path), "a list that was read saves and loads");
    Demand(list.Addresses() == addresses, "saving keeps the addresses");
    return 0;
}
