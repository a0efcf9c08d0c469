#pragma once

#include "common/export.h"

#include <QString>

#include <memory>

class QLockFile;

/// Who edits a project: a lock file, "<project>.lock", beside the project file for as long as it is held. A
/// host takes one before it opens a project for editing; reading needs none, and loading and saving do not
/// ask. A lock that a crashed program left is recognised and taken over.
class ORVANDATA_EXPORT CProjectLock
{
public:
    explicit CProjectLock(const QString& projectPath); ///< a link stands for the file that it leads to
    ~CProjectLock();                                   ///< releases
    CProjectLock(const CProjectLock&) = delete;
    CProjectLock& operator=(const CProjectLock&) = delete;

    /// Does not wait. False while another program, or another lock of this one, edits the project, or when no
    /// file can be made beside it; `holder`, when given, then says who or why, for the user.
    bool Lock(QString* holder = nullptr);
    void Unlock();
    bool IsLocked() const;

private:
    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};
