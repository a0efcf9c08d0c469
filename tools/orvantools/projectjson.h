#pragma once

#include <QJsonObject>

class CMonitorInterfaceData;
class CProjectData;

namespace OrvanTools {

/// Everything a project holds as one object. Cabinets and group trees, by far the largest part, only
/// `withTiles`. A backup port is described by its own stored layout.
QJsonObject DescribeProject(const CProjectData& project, const CMonitorInterfaceData& monitor,
                            bool withTiles);

} // namespace OrvanTools
