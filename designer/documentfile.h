#pragma once

#include <QString>

#include <memory>

class CCustomProgressbar;
class CProjectLock;

/// The project file that the open document came from or was last written to, and the lock on it.
class DocumentFile
{
public:
    enum class Outcome
    {
        Done,
        DoneInPart, ///< read or written, but not all of it
        InUse,      ///< somebody else edits it, or no lock can be made; nothing was done
        Failed,     ///< the document, or the file, is as it was
    };

    DocumentFile();
    ~DocumentFile();

    /// Reads a project into the open document. `text` receives what to tell the user, unless all went well.
    /// `readOnly` asks for no lock; what is open then is saved under another name alone.
    Outcome Open(const QString& path, bool readOnly, CCustomProgressbar* progress, QString* text);
    Outcome Save(const QString& path, CCustomProgressbar* progress, QString* text);
    void Forget(); ///< the document has no file from now on

    QString GetPath() const { return m_path; } ///< empty: none yet
    QString GetFolder() const;                 ///< where the user looks for files
    bool IsReadOnly() const { return !m_path.isEmpty() && !m_lock; }
    bool IsInPart() const { return m_inPart; } ///< saving to this path would lose what was not read

private:
    using Lock = std::shared_ptr<CProjectLock>;
    Lock LockOf(const QString& path, QString* holder) const;
    Outcome Take(const QString& path, const Lock& lock, const QString& missing);

    QString m_path;
    Lock m_lock; ///< null while there is no path, and when it is only read
    bool m_inPart = false;
};
