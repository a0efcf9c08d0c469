#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class QIODevice;

/// Replaces the file at `path` as one step: `write` fills a new file beside it, ".<name>.part", which is
/// flushed to disk and renamed over it; a link is resolved to its target first. On failure, also when `write`
/// returns false, the old file stays as it was and `error`, when given, says why: `write` may set it for
/// reasons of its own. What a save that was killed left beside is removed by the next one; two saves of one
/// file at a time follow one another.
bool ReplaceFile(const QString& path, const std::function<bool(QIODevice&)>& write, QString* error = nullptr);
bool ReplaceFile(const QString& path, const QByteArray& content, QString* error = nullptr);

/// The same for a file that can be made again: the disk is not waited for, and a link is replaced, not
/// followed. The new file has no name, or one that no other file has, until it is whole: the folder may hold
/// files of any name. Of two writers at a time the last one counts.
bool ReplaceWorkFile(const QString& path, const std::function<bool(QIODevice&)>& write,
                     QString* error = nullptr);
