#pragma once

#include <QString>
#include <QTemporaryDir>

/// A new folder in the platform's temporary folder for work of a moment, gone with the object. Folders that
/// programs of this user left which were killed more than an hour ago are removed when one is made.
class ScratchFolder
{
public:
    ScratchFolder();

    bool IsValid() const { return m_folder.isValid(); }
    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private:
    QTemporaryDir m_folder;
};
