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

bool MakeFoldersOf(const QString& base, const QString& relativeFile)
{
    QString folder = base.endsWith(QLatin1Char('/')) ? base.chopped(1) : base;
    QStringList names = relativeFile.split(QLatin1Char('/'));
    names.removeLast();
    for (const QString& name : qAsConst(names)) {
        folder += QLatin1Char('/') + name;
        const QFileInfo info(folder);
        if (info.isSymLink() || (!info.isDir() && !QDir().mkdir(folder)))
            return false;
    }
    return true;
}
