#include "frame/runtimedata.h"

#include "layout/projectundoredo.h"
#include "products/productdirectoryset.h"
#include "settings/designbackground.h"

CRuntimeData::CRuntimeData()
    : m_products(std::make_unique<CProductDirectorySet>()), m_history(std::make_unique<CProjectUndoRedo>()),
      m_designBackground(std::make_unique<CDesignBackground>())
{}

CRuntimeData::~CRuntimeData() = default;

CProductDirectorySet* CRuntimeData::GetProductDirectorySet() const
{
    return m_products.get();
}

CProjectUndoRedo* CRuntimeData::GetProjectUndoRedo() const
{
    return m_history.get();
}

CDesignBackground* CRuntimeData::GetDesignBackground() const
{
    return m_designBackground.get();
}

SImpExpPrepareInfo* CRuntimeData::GetImpExpPrepareInfo()
{
    return &m_impExpPrepareInfo;
}

void CRuntimeData::SetImpExpPrepareInfo(const SImpExpPrepareInfo& info)
{
    m_impExpPrepareInfo = info;
}

QUuid CRuntimeData::GetAddGroupId() const
{
    return m_addGroupId;
}

void CRuntimeData::SetAddGroupId(const QUuid& id)
{
    m_addGroupId = id;
}

int CRuntimeData::GetCurSelectNode() const
{
    return m_curSelectNode;
}

void CRuntimeData::SetCurSelectNode(int node)
{
    m_curSelectNode = node;
}

int CRuntimeData::GetCurInterfaceDlg() const
{
    return m_curInterface;
}

void CRuntimeData::SetCurInterfaceDlg(int iface)
{
    m_curInterface = iface;
}

int CRuntimeData::GetVideoSourceSubDlg() const
{
    return m_videoSourceSubDlg;
}

void CRuntimeData::SetVideoSourceSubDlg(int dialog)
{
    m_videoSourceSubDlg = dialog;
}

int CRuntimeData::GetDesignSubDlg() const
{
    return m_designSubDlg;
}

void CRuntimeData::SetDesignSubDlg(int dialog)
{
    m_designSubDlg = dialog;
}

int CRuntimeData::GetCalibrationSubDlg() const
{
    return m_calibrationSubDlg;
}

void CRuntimeData::SetCalibrationSubDlg(int dialog)
{
    m_calibrationSubDlg = dialog;
}

int CRuntimeData::GetSoftEdgeSubDlg() const
{
    return m_softEdgeSubDlg;
}

void CRuntimeData::SetSoftEdgeSubDlg(int dialog)
{
    m_softEdgeSubDlg = dialog;
}
