#pragma once

#include <QString>

namespace OrvanTools {

/// Whether a terminal may do more with a character than show it: controls, line separators, and what turns
/// the direction of writing.
bool IsUnprintable(QChar character);

/// A text of a file in one line, with a sign in place of each such character.
QString Printable(QString text);

} // namespace OrvanTools
