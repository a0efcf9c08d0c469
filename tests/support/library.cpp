#include "support/library.h"
#include "support/text.h"

#include <QDir>
#include <QStandardPaths>

Library::Library()
{
    QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/Orvan"_s)
        .removeRecursively();
    LedNimbraData_Init();
}

Library::~Library()
{
    LedNimbraData_Release();
}
