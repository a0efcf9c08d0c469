#include "settings/folders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString DocumentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString ProductFolder()
{
    return DocumentsFolder() + QStringLiteral("/Orvan/LedConfig/");
}

bool MakeFoldersOf(const QString& base, const QString& relativeFile, QSet<QString>* made)
{
    const int separator = relativeFile.lastIndexOf(QLatin1Char('/'));
    if (separator < 0)
        return true;
    const QString below = relativeFile.left(separator);
    if (made && made->contains(below))
        return true;
    if (!MakeFoldersOf(base, below, made))
        return false;
    const QString folder = base.endsWith(QLatin1Char('/')) ? base + below : base + QLatin1Char('/') + below;
    const QFileInfo info(folder);
    if (info.isSymLink() || (!info.isDir() && !QDir().mkdir(folder)))
        return false;
    if (made)
        made->insert(below);
    return true;
}
