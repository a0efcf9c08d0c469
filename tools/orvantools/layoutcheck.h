#pragma once

#include "orvantools/placedtext.h"
#include "orvantools/portload.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class CProjectData;

namespace OrvanTools {

class StoredReceivers;

/// What can be wrong with a project, in the order that faults are listed.
enum class FaultKind
{
    Overlap,
    OffCanvas,
    Unnumbered,
    DuplicateIndex,
    IndexGap,
    ReceiverMismatch,
    UnknownType,
    MissingParameterFile,
    OrphanGroup,
    BackupOfNothing,
    BackupLoop,
    PortOverload,
};

QString FaultKindName(FaultKind kind); ///< "overlap", "off-canvas" …
QStringList FaultKindNames();          ///< of all kinds, in their order

struct Fault : PlacedText
{
    FaultKind kind = FaultKind::Overlap;

    QJsonObject Json() const { return JsonOfKind(FaultKindName(kind)); }
};

struct CheckOptions
{
    PortCapacity capacity;
    bool atOwnRate = false; ///< at the frames and bits that each sender is set to, where it is
    const StoredReceivers* stored = nullptr; ///< [ref] of the file read; null: no receiver-mismatch
};

/// Tells the faults of the open document, ordered by kind, sender, port and cabinet, at most one of a kind
/// for a cabinet. Stored cabinets of a backup port are passed over: the port shows those of its source.
void CheckProject(const CProjectData& project, const CheckOptions& options,
                  const std::function<void(const Fault&)>& found);

/// The same as a list, for a window that shows them all.
QList<Fault> CheckProject(const CProjectData& project, const CheckOptions& options);

} // namespace OrvanTools
