#pragma once

#include <QString>

/// The file that settings are loaded from and saved to. A file that could not be understood is renamed to
/// ".bak", over an older one, before another is written in its place.
class SettingsFile
{
public:
    void SetPath(const QString& path);
    const QString& Path() const { return m_path; }

    void Hold() { m_held = true; } ///< the file could not be understood

    /// Moves the file aside when it is held. Call it before each save. False when there is no path, or when
    /// moving fails. A file that is missing or empty needs no moving.
    bool MakeWritable();

private:
    QString m_path;
    bool m_held = false; ///< until it was moved aside
};
