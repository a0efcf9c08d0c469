#include "settings/brokenfile.h"

#include <QFile>
#include <QFileInfo>

bool SetBrokenFileAside(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() || (info.isFile() && info.size() == 0))
        return true;
    if (!info.isFile())
        return false;
    const QString kept = path + QStringLiteral(".bak");
    QFile::remove(kept);
    return QFile::rename(path, kept);
}
