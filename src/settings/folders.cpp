#include "settings/folders.h"

#include <QStandardPaths>

QString DocumentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString ProductFolder()
{
    return DocumentsFolder() + QStringLiteral("/Orvan/LedConfig/");
}
