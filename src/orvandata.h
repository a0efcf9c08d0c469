#pragma once

// Everything that the library exports.
#include "common/canvaslimits.h"
#include "common/export.h"
#include "common/guidcompare.h"
#include "common/interfacedlg.h"
#include "common/rotateparam.h"
#include "common/smd5.h"
