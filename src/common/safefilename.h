#pragma once

#include <QHash>
#include <QSet>
#include <QString>

constexpr int kMaxFileNameBytes = 120;

/// Makes a text safe as one component of a path. Separators, controls and characters that some file system
/// refuses become "_". Leading dots and trailing dots and blanks go. It is cut to kMaxFileNameBytes of UTF-8.
/// `fallback` replaces a text of which nothing is left.
QString SafeFileName(const QString& text, const QString& fallback);

/// Gives out names that all differ, also when case does not count.
class UniqueNames
{
public:
    QString Take(const QString& name); ///< the name itself, or followed by "_2", "_3" … when it is taken

private:
    QSet<QString> m_taken;         ///< case-folded
    QHash<QString, int> m_numbers; ///< the last number given to a name, case-folded
};
