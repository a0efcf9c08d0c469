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

bool DocumentFile::IsHere(const QString& path) const
{
    return !m_path.isEmpty() && QFileInfo(m_path) == QFileInfo(path);
}

/// Null when it cannot be had.
std::unique_ptr<CProjectLock> DocumentFile::TakeLock(const QString& path, QString* holder) const
{
    auto lock = std::make_unique<CProjectLock>(path);
    return lock->Lock(holder) ? std::move(lock) : nullptr;
}

DocumentFile::Outcome DocumentFile::Open(const QString& path, bool readOnly, CCustomProgressbar* progress,
                                         QString* text)
{
    const bool isLockedHere = m_lock && IsHere(path);
    std::unique_ptr<CProjectLock> lock;
    if (!readOnly && !isLockedHere) {
        lock = TakeLock(path, text);
        if (!lock)
            return Outcome::InUse;
    }
    QString neededVersion;
    CProjectData& project = *GetProjectData();
    if (!project.LoadProjectFromFile(QFile::encodeName(path).constData(), neededVersion, progress)) {
        *text = project.GetLastFileError();
        return Outcome::Failed;
    }
    if (!isLockedHere)
        m_lock = std::move(lock);
    *text = project.GetLastFileError();
    m_path = QFileInfo(path).absoluteFilePath();
    m_readOnly = readOnly;
    m_inPart = !text->isEmpty();
    GetConfigData()->AddProjectRecord(m_path);
    return m_inPart ? Outcome::DoneInPart : Outcome::Done;
}

DocumentFile::Outcome DocumentFile::Save(const QString& path, CCustomProgressbar* progress, QString* text)
{
    const bool isLockedHere = m_lock && IsHere(path);
    std::unique_ptr<CProjectLock> lock;
    if (!isLockedHere) {
        lock = TakeLock(path, text);
        if (!lock)
            return Outcome::InUse;
    }
    CProjectData& project = *GetProjectData();
    const bool isSaved = project.SaveProjectToFile(QFileInfo(path).absoluteFilePath(), progress);
    *text = project.GetLastFileError();
    if (!isSaved || !text->isEmpty())
        return Outcome::Failed;
    if (!isLockedHere)
        m_lock = std::move(lock);
    m_path = QFileInfo(path).absoluteFilePath();
    m_readOnly = false;
    m_inPart = false;
    GetRuntimeData()->GetProjectUndoRedo()->SetAsSaveStep();
    GetConfigData()->AddProjectRecord(m_path);
    return Outcome::Done;
}

void DocumentFile::Forget()
{
    m_lock.reset();
    m_path.clear();
    m_readOnly = false;
    m_inPart = false;
}
