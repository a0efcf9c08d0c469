#include "documentfile.h"

#include <OrvanData/orvandata.h>

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

DocumentFile::DocumentFile() = default;

DocumentFile::~DocumentFile() = default;

QString DocumentFile::GetFolder() const
{
    return m_path.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                            : QFileInfo(m_path).path();
}

/// The one at hand when it is on that path. Null when it cannot be had.
DocumentFile::Lock DocumentFile::LockOf(const QString& path, QString* holder) const
{
    if (m_lock && QFileInfo(m_path) == QFileInfo(path))
        return m_lock;
    auto lock = std::make_shared<CProjectLock>(path);
    return lock->Lock(holder) ? lock : nullptr;
}

/// `missing`: why it is not whole.
DocumentFile::Outcome DocumentFile::Take(const QString& path, const Lock& lock, const QString& missing)
{
    m_path = QFileInfo(path).absoluteFilePath();
    m_lock = lock;
    GetConfigData()->AddProjectRecord(m_path);
    return missing.isEmpty() ? Outcome::Done : Outcome::DoneInPart;
}

DocumentFile::Outcome DocumentFile::Open(const QString& path, bool readOnly, CCustomProgressbar* progress,
                                         QString* text)
{
    const Lock lock = readOnly ? nullptr : LockOf(path, text);
    if (!readOnly && !lock)
        return Outcome::InUse;
    QString neededVersion;
    CProjectData& project = *GetProjectData();
    const bool isRead =
        project.LoadProjectFromFile(QFile::encodeName(path).constData(), neededVersion, progress);
    *text = project.GetLastFileError();
    if (!isRead)
        return Outcome::Failed;
    m_inPart = !text->isEmpty();
    return Take(path, lock, *text);
}

DocumentFile::Outcome DocumentFile::Save(const QString& path, CCustomProgressbar* progress, QString* text)
{
    const Lock lock = LockOf(path, text);
    if (!lock)
        return Outcome::InUse;
    CProjectData& project = *GetProjectData();
    project.SaveProjectToFile(QFileInfo(path).absoluteFilePath(), progress);
    *text = project.GetLastFileError();
    if (!project.IsArchiveWritten())
        return Outcome::Failed;
    m_inPart = false;
    GetRuntimeData()->GetProjectUndoRedo()->SetAsSaveStep();
    return Take(path, lock, *text);
}

void DocumentFile::Forget()
{
    m_lock.reset();
    m_path.clear();
    m_inPart = false;
}
