#pragma once

class QString;

/// Moves a file that could not be understood to its name with ".bak" behind, over an older one, so that a
/// new file can be written without losing it. True when nothing is in the way any more: also when there is
/// no such file, or an empty one.
bool SetBrokenFileAside(const QString& path);
