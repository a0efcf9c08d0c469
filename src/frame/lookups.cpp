#include "frame/lookups.h"

#include "frame/lednimbradata.h"
#include "frame/runtimedata.h"
#include "layout/layoutlookup.h"
#include "layout/sender.h"
#include "monitor/monitordata.h"
#include "monitor/monitorlookup.h"
#include "products/productdirectoryset.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"
#include "settings/configdata.h"
#include "settings/settingslookup.h"

namespace {

class SettingsAnswers : public SettingsLookup
{
public:
    ELanguageType Language() const override
    {
        return GetConfigData() ? GetConfigData()->GetLanguageType() : SettingsLookup::Language();
    }
    bool IsMonitoring() const override { return GetMonitorData() && GetMonitorData()->IsMonitoring(); }
    bool StoredReadOnly(int iface) const override
    {
        return GetMonitorData() && GetMonitorData()->GetInterfaceReadOnly(iface);
    }
    int CurrentInterface() const override
    {
        return GetRuntimeData() ? GetRuntimeData()->GetCurInterfaceDlg() : SettingsLookup::CurrentInterface();
    }
    void SetCurrentInterface(int iface) override
    {
        if (GetRuntimeData())
            GetRuntimeData()->SetCurInterfaceDlg(iface);
    }
    int VideoSourceSubDlg() const override
    {
        return GetRuntimeData() ? GetRuntimeData()->GetVideoSourceSubDlg() : 0;
    }
    int DesignSubDlg() const override { return GetRuntimeData() ? GetRuntimeData()->GetDesignSubDlg() : 0; }
    void SetDesignSubDlg(int dialog) override
    {
        if (GetRuntimeData())
            GetRuntimeData()->SetDesignSubDlg(dialog);
    }
    int CalibrationSubDlg() const override
    {
        return GetRuntimeData() ? GetRuntimeData()->GetCalibrationSubDlg() : 0;
    }
    int SoftEdgeSubDlg() const override
    {
        return GetRuntimeData() ? GetRuntimeData()->GetSoftEdgeSubDlg() : 0;
    }
};

class LayoutAnswers : public LayoutLookup
{
public:
    bool IsRotateEnabled() const override { return GetConfigData() && GetConfigData()->IsEnableRotate(); }
    bool FindProduct(const SMD5& type, Product* found) const override
    {
        CProduct* product = GetRuntimeData()
                                ? GetRuntimeData()->GetProductDirectorySet()->FindProductFromGuid(type)
                                : nullptr;
        if (product && found)
            *found = {product->GetName(), product->IsMulti(), product->IsMultiFlagSet()};
        return product != nullptr;
    }
    CSender* FindSender(const QUuid& id) const override
    {
        return GetProjectData() ? GetProjectData()->GetSender(GetProjectData()->GetScIndexByID(id)) : nullptr;
    }
    CSender* CurrentSender() const override
    {
        return GetProjectData() ? GetProjectData()->GetCurrentSender() : nullptr;
    }
    QList<CSender*> Senders() const override
    {
        return GetProjectData() ? GetProjectData()->GetSenders() : QList<CSender*>();
    }
    void AddParameterFile(const QString& name, const SMD5& type) override
    {
        if (GetProjectData())
            GetProjectData()->AddParameterFileInfo(name, type);
    }
};

class MonitorAnswers : public MonitorLookup
{
public:
    bool IsInterfaceReadOnly(int iface) const override
    {
        return GetConfigData() && GetConfigData()->GetReadOnlyState(iface);
    }
    void SetInterfaceReadOnly(int iface, bool readOnly) override
    {
        if (GetConfigData())
            GetConfigData()->SetReadOnlyState(iface, readOnly);
    }
};

class ProjectAnswers : public ProjectLookup
{
public:
    bool IsOpenDocument(const CProjectData* project) const override { return project == ::GetProjectData(); }
    CProductDirectorySet* Products() const override
    {
        return GetRuntimeData() ? GetRuntimeData()->GetProductDirectorySet() : nullptr;
    }
    CProjectUndoRedo* History() const override
    {
        return GetRuntimeData() ? GetRuntimeData()->GetProjectUndoRedo() : nullptr;
    }
    CMonitorData* Monitor() const override { return GetMonitorData(); }
    SImpExpPrepareInfo ImpExpPrepareInfo() const override
    {
        return GetRuntimeData() ? *GetRuntimeData()->GetImpExpPrepareInfo() : SImpExpPrepareInfo();
    }
    int DetectStrategy() const override { return GetConfigData() ? GetConfigData()->GetDetectStrategy() : 0; }
    QUuid AddGroupId() const override
    {
        return GetRuntimeData() ? GetRuntimeData()->GetAddGroupId() : QUuid();
    }
    int CurSelectNode() const override
    {
        return GetRuntimeData() ? GetRuntimeData()->GetCurSelectNode() : -1;
    }
    void SetCurSelectNode(int node) override
    {
        if (GetRuntimeData())
            GetRuntimeData()->SetCurSelectNode(node);
    }
};

} // namespace

void InstallLookups()
{
    static SettingsAnswers settings;
    static LayoutAnswers layout;
    static MonitorAnswers monitor;
    static ProjectAnswers project;
    SetSettingsLookup(&settings);
    SetLayoutLookup(&layout);
    SetMonitorLookup(&monitor);
    SetProjectLookup(&project);
}

void RemoveLookups()
{
    SetSettingsLookup(nullptr);
    SetLayoutLookup(nullptr);
    SetMonitorLookup(nullptr);
    SetProjectLookup(nullptr);
}
