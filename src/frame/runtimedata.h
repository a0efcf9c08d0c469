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

    CProductDirectorySet* GetProductDirectorySet() const; ///< [ref]
    CProjectUndoRedo* GetProjectUndoRedo() const;         ///< [ref] of the open document
    CDesignBackground* GetDesignBackground() const;       ///< [ref]

    /// [ref] The choice of processors for the next export or import of parameter files.
    SImpExpPrepareInfo* GetImpExpPrepareInfo();
    void SetImpExpPrepareInfo(const SImpExpPrepareInfo& info);

    QUuid GetAddGroupId() const; ///< sender group that new senders join, null: none
    void SetAddGroupId(const QUuid& id);
    int GetCurSelectNode() const; ///< sender selected in the host's tree, -1: none
    void SetCurSelectNode(int node);

    // current window and its sub-dialogs
    int GetCurInterfaceDlg() const; ///< an EInterfaceDlg
    void SetCurInterfaceDlg(int iface);
    int GetVideoSourceSubDlg() const;
    void SetVideoSourceSubDlg(int dialog);
    int GetDesignSubDlg() const;
    void SetDesignSubDlg(int dialog);
    int GetCalibrationSubDlg() const;
    void SetCalibrationSubDlg(int dialog);
    int GetSoftEdgeSubDlg() const;
    void SetSoftEdgeSubDlg(int dialog);

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
