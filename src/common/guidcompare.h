#pragma once

#include <QUuid>

/// What one group's renumbering did: its id before and after.
struct SGuidCompare
{
    QUuid oldId;
    QUuid newId;
};
