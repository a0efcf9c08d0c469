#pragma once

#include <QList>
#include <QMetaType>

/// The choice of processors that the user made for an export or import of parameter files.
struct SImpExpPrepareInfo
{
    bool matchByIp = false; ///< processors of a file are found by their address, else by position
    QList<int> senders;     ///< indices in project order
};

Q_DECLARE_METATYPE(SImpExpPrepareInfo)
