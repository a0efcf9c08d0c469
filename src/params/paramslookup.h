#pragma once

#include <QList>
#include <QString>

class CSender;
class QUuid;

/// The choice of processors that the user made for an export or import.
struct SImpExpPrepareInfo
{
    bool matchByIp = false; ///< processors of a file are found by their address, else by position
    QList<int> senders;     ///< indices in project order
};

/// What the import and export of parameter files ask of the project and the runtime state above.
class ParamsLookup
{
public:
    virtual ~ParamsLookup() = default;

    virtual CSender* Sender(int index) const = 0;       ///< [ref] null when out of range
    virtual int SenderIndex(const QUuid& id) const = 0; ///< -1 when absent
    virtual SImpExpPrepareInfo Prepared() const = 0;
    virtual void SetFileError(const QString& reason) = 0; ///< why a file could not be read or written
};
