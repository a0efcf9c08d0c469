#pragma once

#include <QHash>
#include <QSet>
#include <QString>

constexpr int kMaxFileNameBytes = 120;

/// A text made safe as one component of a path: no separators, controls or characters that some file system
/// refuses (they become "_"), no leading dots, no trailing dots or blanks, at most kMaxFileNameBytes of
/// UTF-8; `fallback` for a text of which nothing is left.
QString SafeFileName(const QString& text, const QString& fallback);

/// Names that are unlike each other, in either case.
class UniqueNames
{
public:
    QString Take(const QString& name); ///< the name itself, or followed by "_2", "_3" … when it is taken

private:
    QSet<QString> m_taken;         ///< case-folded
    QHash<QString, int> m_numbers; ///< the last one given, by the case-folded name before it
};
