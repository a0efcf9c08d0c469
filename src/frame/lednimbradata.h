#pragma once

#include "common/export.h"

#include <QString>

class CConfigData;
class CConstantData;
class CMonitorData;
class CProjectData;
class CProjectManagement;
class CRuntimeData;

// The six objects that a host's windows share. All calls come from the host's main thread.

/// Creates whatever object is still missing and loads the settings anew. A second call keeps the objects.
/// Comes after the application object, and never fails: where the documents folder cannot be written to, the
/// settings are the defaults, and what needs files fails later. So ask LedNimbraData_FolderProblem as well.
ORVANDATA_EXPORT void LedNimbraData_Init();

/// Why the folders that the library keeps files in cannot be used, for the user; empty when they can. Tries
/// to write into each and makes those that are missing. At any time, before LedNimbraData_Init too.
ORVANDATA_EXPORT QString LedNimbraData_FolderProblem();

/// Destroys the objects, and with them all that they handed out. Saves nothing.
ORVANDATA_EXPORT void LedNimbraData_Release();

// [ref] Null before LedNimbraData_Init and after LedNimbraData_Release.
ORVANDATA_EXPORT CProjectData* GetProjectData();
ORVANDATA_EXPORT CProjectManagement* GetProjectManagement();
ORVANDATA_EXPORT CConfigData* GetConfigData();
ORVANDATA_EXPORT CConstantData* GetConstantData();
ORVANDATA_EXPORT CRuntimeData* GetRuntimeData();
ORVANDATA_EXPORT CMonitorData* GetMonitorData();
