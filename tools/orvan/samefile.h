#pragma once

class QString;

/// Whether two paths lead to one file, also through links. False when one of them leads nowhere.
bool IsSameFile(const QString& a, const QString& b);
