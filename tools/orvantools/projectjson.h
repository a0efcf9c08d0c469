#pragma once

#include "orvantools/portload.h"

#include <QJsonObject>

class CMonitorInterfaceData;
class CProjectData;

namespace OrvanTools {

class JsonWriter;

/// Everything a project holds as one object. Cabinets and group trees, by far the largest part, only
/// `withTiles`. A backup port is described by its own stored layout. A port that carries
/// nothing has no load: null.
QJsonObject DescribeProject(const CProjectData& project, const CMonitorInterfaceData& monitor, bool withTiles,
                            const PortCapacity& capacity = PortCapacity());

/// The same piece by piece, with the members of `more` in it.
void WriteProject(const CProjectData& project, const CMonitorInterfaceData& monitor, bool withTiles,
                  const PortCapacity& capacity, const QJsonObject& more, JsonWriter& out);

} // namespace OrvanTools
