#pragma once

#include <QDebug>

/// Writes the parts behind each other, without blanks between them, and leaves the stream as it was.
template <class... Parts> QDebug DebugLine(QDebug debug, const Parts&... parts)
{
    const QDebugStateSaver saver(debug);
    debug.nospace();
    (debug << ... << parts);
    return debug;
}
