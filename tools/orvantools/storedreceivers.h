#pragma once

#include <QString>

#include <map>
#include <string_view>
#include <vector>

namespace OrvanTools {

/// The first receiver numbers as a project file states them. The library derives its own when it reads the
/// file. So these tell whether the writer of the file counted along the wiring.
class StoredReceivers
{
public:
    /// Reads an archive or a bare document that the library reads too. False when that fails.
    bool Read(const QString& path);

    /// For the cabinets of a port, in the order of the library; empty when the file has no such port. Counted
    /// from 0.
    std::vector<int> OfPort(int sender, int port) const;

private:
    using Port = std::map<int, int>;    ///< first receiver, by the cabinet's number in the file
    using Sender = std::map<int, Port>; ///< by the port's number

    bool ReadDocument(const QString& path);
    void TakeTag(std::string_view name, std::string_view attributes);

    std::map<int, Sender> m_senders;
    Sender* m_sender = nullptr; ///< [ref] being read
    Port* m_port = nullptr;     ///< [ref] being read
};

} // namespace OrvanTools
