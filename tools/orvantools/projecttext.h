#pragma once

#include "orvantools/portload.h"

#include <QString>

class CProjectData;

namespace OrvanTools {

/// What a project holds, for a person to read: print form, senders with a table of their ports and the load
/// of each, parameter files. Several lines, each ended.
QString SummarizeProject(const CProjectData& project, const PortCapacity& capacity = PortCapacity());

} // namespace OrvanTools
