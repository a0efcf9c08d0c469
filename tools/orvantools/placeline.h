#pragma once

#include <QJsonObject>
#include <QString>

namespace OrvanTools {

// What is told of a place in a project. Numbers count from 1 as the host shows them; 0 means that it does not
// apply.

/// "sender 1 port 2 cabinet 3: …", fit for a terminal.
QString PlaceLine(int sender, int port, int cabinet, const QString& text);

QJsonObject PlaceJson(const QString& kind, int sender, int port, int cabinet, const QString& text);

} // namespace OrvanTools
