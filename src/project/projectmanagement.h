#pragma once

#include "common/export.h"

#include <QList>
#include <QString>
#include <QUuid>

class CProjectData;
class QProgressDialog;

/// Copies of projects held beside the open document, by project id. Owns the copies, never what it is given.
class ORVANDATA_EXPORT CProjectManagement
{
public:
    CProjectManagement() = default;
    CProjectManagement(const CProjectManagement&) = delete;
    CProjectManagement& operator=(const CProjectManagement&) = delete;
    ~CProjectManagement();

    /// A copy; one of the same id is overwritten; null is ignored.
    void AddProject(const CProjectData* project);
    CProjectData* GetProjectData(const QUuid& id) const; ///< [ref] null when absent
    void DeleteProject(const QUuid& id);
    void ClearProject();
    int GetProjectCount() const { return m_projects.size(); }

    bool GetNeedSave() const { return m_needSave; } ///< kept for the host
    void SetNeedSave(bool needSave) { m_needSave = needSave; }

    /// Lets the user choose a folder and saves every project that has a device-set name there, as that name +
    /// ".prj", a later one of the same name with " (2)" behind it. Files of the names are replaced. False
    /// when no folder was chosen; a project that cannot be saved is told by its own GetLastFileError() alone.
    bool SaveMutiProject(QProgressDialog* dialog);

private:
    QList<CProjectData*> m_projects;
    bool m_needSave = false;
};
