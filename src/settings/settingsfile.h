#pragma once

#include <QString>

/// Where settings were loaded from and are saved to. What could not be understood there is moved to the name
/// with ".bak" behind, over an older one, before anything is written in its place.
class SettingsFile
{
public:
    void SetPath(const QString& path);
    const QString& Path() const { return m_path; }

    void Hold() { m_held = true; } ///< what stands there could not be understood

    /// Moves aside what is held; to be asked before each save. False when there is no path, or while that
    /// cannot be done. There is nothing to hold in a file that is missing or empty.
    bool MakeWritable();

private:
    QString m_path;
    bool m_held = false; ///< until it was moved aside
};
