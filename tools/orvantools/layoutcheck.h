#pragma once

#include "orvantools/portload.h"

#include <QJsonObject>
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

/// One fault. Numbers count from 1 as the host shows them; 0 means that it does not apply.
struct Fault
{
    FaultKind kind = FaultKind::Overlap;
    int sender = 0;
    int port = 0;
    int cabinet = 0; ///< place in the order of the port's cabinets
    QString text;

    QString Line() const; ///< "sender 1 port 2 cabinet 3: …", fit for a terminal
    QJsonObject Json() const;
};

struct CheckOptions
{
    PortCapacity capacity;
    const StoredReceivers* stored = nullptr; ///< [ref] of the file read; null: no receiver-mismatch
};

/// Tells the faults of the open document, ordered by kind, sender, port and cabinet, at most one of a kind
/// for a cabinet. Stored cabinets of a backup port are passed over: the port shows those of its source.
void CheckProject(const CProjectData& project, const CheckOptions& options,
                  const std::function<void(const Fault&)>& found);

/// The same as a list, for a window that shows them all.
QList<Fault> CheckProject(const CProjectData& project, const CheckOptions& options);

} // namespace OrvanTools
