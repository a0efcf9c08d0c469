#pragma once

#include "common/export.h"

#include <QMetaType>
#include <QUuid>

class QDebug;

/// What one group's renumbering did: its id before and after.
struct SGuidCompare
{
    QUuid oldId;
    QUuid newId;
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SGuidCompare& record);

Q_DECLARE_METATYPE(SGuidCompare)
