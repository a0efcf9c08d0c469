#pragma once

#include "common/export.h"
#include "common/interfacedlg.h"
#include "params/impexpprepareinfo.h"

#include <QUuid>

#include <memory>

class CDesignBackground;
class CProductDirectorySet;
class CProjectUndoRedo;

/// What the host's windows share beside the documents: the product library, the history, the view scaling,
/// and which window is current. Owns the objects whose pointers it hands out.
class ORVANDATA_EXPORT CRuntimeData
{
public:
    CRuntimeData();
    ~CRuntimeData();
    CRuntimeData(const CRuntimeData&) = delete;
    CRuntimeData& operator=(const CRuntimeData&) = delete;

    CProductDirectorySet* GetProductDirectorySet() const { return m_products.get(); } ///< [ref]
    /// [ref] Of the open document. Also tells a window what changed there.
    CProjectUndoRedo* GetProjectUndoRedo() const { return m_history.get(); }
    CDesignBackground* GetDesignBackground() const { return m_designBackground.get(); } ///< [ref]

    /// [ref] The choice of processors for the next export or import of parameter files.
    SImpExpPrepareInfo* GetImpExpPrepareInfo() { return &m_impExpPrepareInfo; }
    const SImpExpPrepareInfo* GetImpExpPrepareInfo() const { return &m_impExpPrepareInfo; }
    void SetImpExpPrepareInfo(const SImpExpPrepareInfo& info) { m_impExpPrepareInfo = info; }

    QUuid GetAddGroupId() const { return m_addGroupId; } ///< sender group that new senders join, null: none
    void SetAddGroupId(const QUuid& id) { m_addGroupId = id; }
    int GetCurSelectNode() const { return m_curSelectNode; } ///< sender selected in the host's tree, -1: none
    void SetCurSelectNode(int node) { m_curSelectNode = node; }

    // current window and its sub-dialogs
    int GetCurInterfaceDlg() const { return m_curInterface; } ///< an EInterfaceDlg
    void SetCurInterfaceDlg(int iface) { m_curInterface = iface; }
    int GetVideoSourceSubDlg() const { return m_videoSourceSubDlg; }
    void SetVideoSourceSubDlg(int dialog) { m_videoSourceSubDlg = dialog; }
    int GetDesignSubDlg() const { return m_designSubDlg; }
    void SetDesignSubDlg(int dialog) { m_designSubDlg = dialog; }
    int GetCalibrationSubDlg() const { return m_calibrationSubDlg; }
    void SetCalibrationSubDlg(int dialog) { m_calibrationSubDlg = dialog; }
    int GetSoftEdgeSubDlg() const { return m_softEdgeSubDlg; }
    void SetSoftEdgeSubDlg(int dialog) { m_softEdgeSubDlg = dialog; }

private:
    std::unique_ptr<CProductDirectorySet> m_products;
    std::unique_ptr<CProjectUndoRedo> m_history;
    std::unique_ptr<CDesignBackground> m_designBackground;
    SImpExpPrepareInfo m_impExpPrepareInfo;
    QUuid m_addGroupId;
    int m_curSelectNode = -1;
    int m_curInterface = InterfaceDesign;
    int m_videoSourceSubDlg = 0;
    int m_designSubDlg = 0;
    int m_calibrationSubDlg = 0;
    int m_softEdgeSubDlg = 0;
};
