#pragma once

#include <QString>

namespace OrvanTools {

/// Whether a character may do something to a terminal other than stand there: controls, what turns the
/// direction of writing, separators of lines.
bool IsUnprintable(QChar character);

/// A text of a file in one line, with a sign in place of each such character.
QString Printable(QString text);

} // namespace OrvanTools
