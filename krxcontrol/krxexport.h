#pragma once

#include <QtCore/qglobal.h>

#if defined(KRXCONTROL_BUILD)
#define KRXCONTROL_EXPORT Q_DECL_EXPORT
#else
#define KRXCONTROL_EXPORT Q_DECL_IMPORT
#endif
