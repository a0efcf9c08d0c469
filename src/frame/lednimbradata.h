#pragma once

#include "common/export.h"

class CConfigData;
class CConstantData;
class CMonitorData;
class CProjectData;
class CProjectManagement;
class CRuntimeData;

// The six objects that a host's windows share. All calls come from the host's main thread.

/// Creates whatever object is still missing and loads the settings anew. A second call keeps the objects.
ORVANDATA_EXPORT void LedNimbraData_Init();

/// Destroys the objects. Saves nothing.
ORVANDATA_EXPORT void LedNimbraData_Release();

// [ref] Null before LedNimbraData_Init and after LedNimbraData_Release.
ORVANDATA_EXPORT CProjectData* GetProjectData();
ORVANDATA_EXPORT CProjectManagement* GetProjectManagement();
ORVANDATA_EXPORT CConfigData* GetConfigData();
ORVANDATA_EXPORT CConstantData* GetConstantData();
ORVANDATA_EXPORT CRuntimeData* GetRuntimeData();
ORVANDATA_EXPORT CMonitorData* GetMonitorData();
