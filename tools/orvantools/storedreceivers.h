#pragma once

#include <QString>

#include <map>
#include <vector>

namespace OrvanTools {

/// The first receiver numbers as a project file states them. The library derives its own when it reads the
/// file, so they say whether the writer of the file counted as the wiring does.
class StoredReceivers
{
public:
    /// Reads an archive or a bare document that the library reads too. False when that fails.
    bool Read(const QString& path);

    /// Of the cabinets of a port in the order the library lists them; empty when the file has no such port.
    /// Counted from 0.
    std::vector<int> OfPort(int sender, int port) const;

private:
    bool ReadDocument(const QString& path);

    using Numbered = std::map<int, int>; ///< cabinet number in the file, first receiver
    std::map<int, std::map<int, Numbered>> m_senders;
};

} // namespace OrvanTools
