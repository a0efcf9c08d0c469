#include "frame/lookups.h"

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

#include <utility>

namespace {

class Answers final : public SettingsLookup, public LayoutLookup, public MonitorLookup, public ProjectLookup
{
public:
    explicit Answers(const SharedObjects& objects)
        : m_project(objects.project), m_config(objects.config), m_runtime(objects.runtime),
          m_monitor(objects.monitor)
    {}

    // settings
    ELanguageType Language() const override { return m_config.GetLanguageType(); }
    bool IsMonitoring() const override { return m_monitor.IsMonitoring(); }
    bool StoredReadOnly(int iface) const override { return m_monitor.GetInterfaceReadOnly(iface); }
    int CurrentInterface() const override { return m_runtime.GetCurInterfaceDlg(); }
    void SetCurrentInterface(int iface) override { m_runtime.SetCurInterfaceDlg(iface); }
    int VideoSourceSubDlg() const override { return m_runtime.GetVideoSourceSubDlg(); }
    int DesignSubDlg() const override { return m_runtime.GetDesignSubDlg(); }
    void SetDesignSubDlg(int dialog) override { m_runtime.SetDesignSubDlg(dialog); }
    int CalibrationSubDlg() const override { return m_runtime.GetCalibrationSubDlg(); }
    int SoftEdgeSubDlg() const override { return m_runtime.GetSoftEdgeSubDlg(); }

    // layout
    bool IsRotateEnabled() const override { return m_config.IsEnableRotate(); }
    bool FindProduct(const SMD5& type, Product* found) const override
    {
        const CProduct* product = Products()->FindProductFromGuid(type);
        if (product && found)
            *found = {product->GetName(), product->IsMulti(), product->IsMultiFlagSet()};
        return product != nullptr;
    }
    CSender* FindSender(const QUuid& id) const override
    {
        return m_project.GetSender(m_project.GetScIndexByID(id));
    }
    CSender* CurrentSender() const override { return m_project.GetCurrentSender(); }
    QList<CSender*> Senders() const override { return m_project.GetSenders(); }
    void AddParameterFile(const QString& name, const SMD5& type) override
    {
        m_project.AddParameterFileInfo(name, type);
    }

    // monitoring
    bool IsInterfaceReadOnly(int iface) const override { return m_config.GetReadOnlyState(iface); }
    void SetInterfaceReadOnly(int iface, bool readOnly) override
    {
        m_config.SetReadOnlyState(iface, readOnly);
    }

    // project
    bool IsOpenDocument(const CProjectData* project) const override { return project == &m_project; }
    CProductDirectorySet* Products() const override { return m_runtime.GetProductDirectorySet(); }
    CProjectUndoRedo* History() const override { return m_runtime.GetProjectUndoRedo(); }
    CMonitorData* Monitor() const override { return &m_monitor; }
    SImpExpPrepareInfo ImpExpPrepareInfo() const override { return *m_runtime.GetImpExpPrepareInfo(); }
    int DetectStrategy() const override { return m_config.GetDetectStrategy(); }
    QUuid AddGroupId() const override { return m_runtime.GetAddGroupId(); }
    int CurSelectNode() const override { return m_runtime.GetCurSelectNode(); }
    void SetCurSelectNode(int node) override { m_runtime.SetCurSelectNode(node); }

private:
    CProjectData& m_project;
    CConfigData& m_config;
    CRuntimeData& m_runtime;
    CMonitorData& m_monitor;
};

Answers* g_answers = nullptr; // for good where the process ends without a release

void Install(Answers* answers)
{
    SetSettingsLookup(answers);
    SetLayoutLookup(answers);
    SetMonitorLookup(answers);
    SetProjectLookup(answers);
}

} // namespace

void InstallLookups(const SharedObjects& objects)
{
    auto* answers = new Answers(objects);
    Install(answers);
    delete std::exchange(g_answers, answers); // other threads may ask meanwhile
}

void RemoveLookups()
{
    Install(nullptr);
    delete std::exchange(g_answers, nullptr);
}
