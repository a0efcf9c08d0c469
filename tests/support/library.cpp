#include "support/library.h"

#include <QDir>
#include <QStandardPaths>

Library::Library()
{
    QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QStringLiteral("/Orvan"))
        .removeRecursively();
    LedNimbraData_Init();
}

Library::~Library()
{
    LedNimbraData_Release();
}
