#include "settings/settingsfile.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

bool MoveAside(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() || (info.isFile() && info.size() == 0))
        return true;
    const QByteArray name = QFile::encodeName(path);
    return info.isFile() && rename(name.constData(), (name + ".bak").constData()) == 0;
}

} // namespace

void SettingsFile::SetPath(const QString& path)
{
    m_path = path;
    m_held = false;
}

bool SettingsFile::MakeWritable()
{
    m_held = m_held && !MoveAside(m_path);
    return !m_path.isEmpty() && !m_held;
}
