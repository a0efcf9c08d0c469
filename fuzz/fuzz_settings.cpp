// The settings of the application, of its windows and of a customer: XML, INI and JSON alike. Settings that
// were saved load again.
#include "fuzzing.h"
#include "settings/configdata.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString folder = FreshFolder();
    CConfigData config;
    config.Load(WriteInput(folder, "SystemConfig.xml", content));
    config.Load_UI(WriteInput(folder, "SystemConfigUI.ini", content));
    config.LoadCustomizeConfig(WriteInput(folder, "Customize.json", content));
    Demand(config.Save() && config.SaveCustomizeConfig(), "settings save");

    CConfigData again;
    Demand(again.Load(folder + QStringLiteral("SystemConfig.xml")), "saved settings load");
    return 0;
}
