#pragma once

#include <QJsonObject>
#include <QString>

namespace OrvanTools {

/// What is told of a place in a project. Numbers count from 1 as the host shows them; 0 means that it does
/// not apply.
struct PlacedText
{
    int sender = 0;
    int port = 0;
    int cabinet = 0; ///< place in the order of the port's cabinets
    QString text;

    QString Line() const; ///< "sender 1 port 2 cabinet 3: …", fit for a terminal
    QJsonObject JsonOfKind(const QString& kind) const;
};

} // namespace OrvanTools
