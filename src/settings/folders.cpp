#include "settings/folders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

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
    QString folder = base.endsWith(QLatin1Char('/')) ? base.chopped(1) : base;
    const QString below = relativeFile.left(relativeFile.lastIndexOf(QLatin1Char('/')));
    if (!relativeFile.contains(QLatin1Char('/')) || (made && made->contains(below)))
        return true;
    const QStringList names = below.split(QLatin1Char('/'));
    for (const QString& name : names) {
        folder += QLatin1Char('/') + name;
        const QFileInfo info(folder);
        if (info.isSymLink() || (!info.isDir() && !QDir().mkdir(folder)))
            return false;
    }
    if (made)
        made->insert(below);
    return true;
}
