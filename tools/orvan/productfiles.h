#pragma once

#include <QString>

#include <functional>

/// Calls `take` with the path of each parameter file below a product folder, until it returns false. False
/// when it did.
bool ForEachProductFile(const QString& folder, const std::function<bool(const QString&)>& take);
