#pragma once

#include "common/seam.h"
#include "params/impexpprepareinfo.h"

#include <QUuid>

class CMonitorData;
class CProductDirectorySet;
class CProjectData;
class CProjectUndoRedo;

/// What a project asks of the library's frame: the shared objects around the open document. Every question
/// has a harmless answer, which stands while nothing is installed.
class ProjectLookup
{
public:
    virtual ~ProjectLookup() = default;

    /// Whether this is the document whose edits the history records; copies held elsewhere are not.
    virtual bool IsOpenDocument(const CProjectData*) const { return false; }

    virtual CProductDirectorySet* Products() const { return nullptr; }
    virtual CProjectUndoRedo* History() const { return nullptr; }
    virtual CMonitorData* Monitor() const { return nullptr; }

    virtual SImpExpPrepareInfo ImpExpPrepareInfo() const { return {}; }
    virtual int DetectStrategy() const { return 0; }
    virtual QUuid AddGroupId() const { return {}; }  ///< sender group that new senders join, null: none
    virtual int CurSelectNode() const { return -1; } ///< sender selected in the host's tree
    virtual void SetCurSelectNode(int) {}
};

inline ProjectLookup* GetProjectLookup()
{
    return Seam<ProjectLookup>::Get();
}

inline void SetProjectLookup(ProjectLookup* lookup)
{
    Seam<ProjectLookup>::Install(lookup);
}
