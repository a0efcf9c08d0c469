// The settings of the application, of its windows and of a customer: XML, INI and JSON alike. Settings that
// were saved load again.
#include "fuzzing.h"
#include "settings/configdata.h"

#include <QFile>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString folder = FreshFolder();
    const QString xml = WriteInput(folder, "SystemConfig.xml", content);
    const QString ini = WriteInput(folder, "SystemConfigUI.ini", content);
    CConfigData config;
    config.Load(xml);
    config.Load_UI(ini);
    config.LoadCustomizeConfig(WriteInput(folder, "Customize.json", content));
    Demand(config.XmlSave(xml) && config.SaveCustomizeConfig(), "settings save");
    Demand(config.Save_UI(), "settings of windows save");

    CConfigData again;
    Demand(again.XmlLoad(xml), "saved settings load");
    Demand(!QFile::exists(ini) || again.Load_UI(ini), "saved settings of windows load");
    return 0;
}
