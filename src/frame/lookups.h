#pragma once

class CConfigData;
class CMonitorData;
class CProjectData;
class CRuntimeData;

struct SharedObjects
{
    CProjectData& project;
    CConfigData& config;
    CRuntimeData& runtime;
    CMonitorData& monitor;
};

/// Answers what the lower rooms ask from these objects, until RemoveLookups.
void InstallLookups(const SharedObjects& objects);
void RemoveLookups();
