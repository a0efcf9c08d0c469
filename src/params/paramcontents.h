#pragma once

#include "common/export.h"

#include <QJsonObject>

namespace params {

/// The element texts of a parameter file as nested objects, elements that repeat as lists, the attributes of
/// the root among its children. Empty, with `error` set, when the file is no parameter file.
ORVANDATA_EXPORT QJsonObject ParamFileContents(const QString& path, QString* error);

} // namespace params
