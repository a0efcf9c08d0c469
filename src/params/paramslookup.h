#pragma once

#include "params/impexpprepareinfo.h"

#include <QString>

class CSender;
class QUuid;

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
