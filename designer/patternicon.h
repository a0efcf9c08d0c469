#pragma once

#include <OrvanData/orvandata.h>

#include <QIcon>
#include <QPalette>

/// The way of an automatic numbering: a chain from its start to its arrow.
QIcon PatternIcon(EnAutoNumberType pattern, const QPalette& palette);
