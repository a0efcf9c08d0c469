#pragma once

#include <QtCore/qglobal.h>

#if defined(ORVANDATA_BUILD)
#define ORVANDATA_EXPORT Q_DECL_EXPORT
#else
#define ORVANDATA_EXPORT Q_DECL_IMPORT
#endif
