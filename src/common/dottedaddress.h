#pragma once

#include <QString>

#include <climits>
#include <optional>

/// The IPv4 address, in host byte order, of four decimal numbers with dots between and blanks around. Nothing
/// for any other text, and for a number of more than `mostDigits`.
std::optional<quint32> ReadDottedAddress(const QString& text, int mostDigits = INT_MAX);
