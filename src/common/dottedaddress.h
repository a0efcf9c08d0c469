#pragma once

#include <QString>

#include <climits>
#include <optional>

/// Reads an IPv4 address, in host byte order, from four decimal numbers with dots between them. Blanks around
/// it are passed over. Nothing for any other text, or when a number has more than `mostDigits`.
std::optional<quint32> ReadDottedAddress(const QString& text, int mostDigits = INT_MAX);
