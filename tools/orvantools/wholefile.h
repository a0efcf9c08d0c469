#pragma once

#include <QString>

#include <functional>

class QIODevice;

namespace OrvanTools {

/// Writes a file as one step: beside it, and renamed over it when all is there. `write` fills it in order,
/// and stops and returns false when the device takes no more. False: the file stays as it was, and `why`
/// tells the reason, unless there is none but that of `write`. It is given up as soon as `isStopped` says so.
bool WriteWholeFile(const QString& path, const std::function<bool(QIODevice&)>& write, QString* why,
                    const std::function<bool()>& isStopped = {});

} // namespace OrvanTools
