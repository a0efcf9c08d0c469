#include "frame/lednimbradata.h"

#include "common/fileproblem.h"
#include "frame/lookups.h"
#include "frame/runtimedata.h"
#include "monitor/monitordata.h"
#include "products/productdirectoryset.h"
#include "project/projectdata.h"
#include "project/projectmanagement.h"
#include "settings/configdata.h"
#include "settings/constantdata.h"

namespace {

CProjectData* g_project = nullptr;
CProjectManagement* g_projects = nullptr;
CConfigData* g_config = nullptr;
CConstantData* g_constant = nullptr;
CRuntimeData* g_runtime = nullptr;
CMonitorData* g_monitor = nullptr;

template <class Object> void CreateMissing(Object*& object)
{
    if (!object)
        object = new Object;
}

template <class Object> void Destroy(Object*& object)
{
    delete object;
    object = nullptr;
}

} // namespace

void LedNimbraData_Init()
{
    CreateMissing(g_project);
    CreateMissing(g_projects);
    CreateMissing(g_config);
    CreateMissing(g_constant);
    CreateMissing(g_runtime);
    CreateMissing(g_monitor);
    InstallLookups({*g_project, *g_config, *g_runtime, *g_monitor});

    g_config->Load(CConstantData::GetSysConfigDir() + QStringLiteral("SystemConfig.xml"));
    g_config->LoadSpecifiedIP(CConstantData::GetSysConfigDir() + QStringLiteral("SpecifiedIPs.txt"));
    // The interface settings lie beside the products, where hosts have always looked for them.
    g_config->Load_UI(CProductDirectorySet::GetRootDir() + QStringLiteral("SystemConfigUI.ini"));
    // The first call after a load keeps the language of the file and only derives the path of its
    // translation.
    g_config->SetLanguage(LanguageChinese);
}

QString LedNimbraData_FolderProblem()
{
    QString why;
    for (const QString& folder : {CConstantData::GetSysConfigDir(), CProductDirectorySet::GetRootDir(),
                                  CConstantData::GetProjectParamFileTemp(), CConstantData::GetBKImagePath()})
        if (!MakeFolder(folder, &why) || !CanWriteIn(folder, &why))
            return why;
    return {};
}

void LedNimbraData_Release()
{
    RemoveLookups();
    // Not the reverse of the creation; hosts rely on this order.
    Destroy(g_monitor);
    Destroy(g_config);
    Destroy(g_constant);
    Destroy(g_runtime);
    Destroy(g_projects);
    Destroy(g_project);
}

CProjectData* GetProjectData()
{
    return g_project;
}

CProjectManagement* GetProjectManagement()
{
    return g_projects;
}

CConfigData* GetConfigData()
{
    return g_config;
}

CConstantData* GetConstantData()
{
    return g_constant;
}

CRuntimeData* GetRuntimeData()
{
    return g_runtime;
}

CMonitorData* GetMonitorData()
{
    return g_monitor;
}
