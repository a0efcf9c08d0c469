#pragma once

class CProjectData;
class QIODevice;

namespace OrvanTools {

enum class ListForm
{
    Csv,       ///< RFC 4180 with a byte order mark and a line of names; no text is taken for a formula
    JsonLines, ///< an object a line; what is empty is null
};

/// Writes a row for each cabinet of the ports in use, without backups, in the order of the document. False as
/// soon as the device does not take all.
bool WriteCabinetList(QIODevice& device, ListForm form, const CProjectData& project);

/// Writes a row for each cable, in chain order: from the port to its first cabinet, then from each numbered
/// cabinet to the next.
bool WriteCableSchedule(QIODevice& device, ListForm form, const CProjectData& project);

} // namespace OrvanTools
