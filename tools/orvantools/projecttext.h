#pragma once

#include <QString>

class CProjectData;

namespace OrvanTools {

/// What a project holds, for a person to read: print form, senders with a table of their ports, parameter
/// files. Several lines, each ended.
QString SummarizeProject(const CProjectData& project);

} // namespace OrvanTools
