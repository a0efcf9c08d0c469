#pragma once

#include <QString>
#include <QStringList>

/// A text made safe as one component of a path: no separators, controls or characters that some file system
/// refuses (they become "_"), no leading dots, no trailing dots or blanks, at most 120 bytes of UTF-8;
/// `fallback` for a text of which nothing is left.
QString SafeFileName(const QString& text, const QString& fallback);

/// The name itself, or followed by "_2", "_3" … so that it is unlike all that are taken, in either case.
QString UniqueName(const QString& name, const QStringList& taken);
