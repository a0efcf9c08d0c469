#pragma once

#include <OrvanData/orvandata.h>

#include <QHash>
#include <QString>

namespace OrvanTools {

/// The names of the project's parameter files by their type; of a type that is listed twice the first one.
QHash<SMD5, QString> ProductNames(const CProjectData& project);

} // namespace OrvanTools
