#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class QIODevice;

/// Replaces a file as one step. `write` fills a new file beside it, ".<name>.part". That is flushed to disk
/// and renamed over the old one. A link is resolved to its target first. When anything fails, or `write`
/// returns false, the old file stays and `error` says why; `write` may set it itself. A save removes what a
/// killed one left. Of two saves of one file, the second one waits.
bool ReplaceFile(const QString& path, const std::function<bool(QIODevice&)>& write, QString* error = nullptr);
bool ReplaceFile(const QString& path, const QByteArray& content, QString* error = nullptr);

/// The same for a file that can be made again. It does not wait for the disk, and it replaces a link. Until
/// the new file is whole it has no name, or one that no other file has. Of two writers the last one counts.
bool ReplaceWorkFile(const QString& path, const std::function<bool(QIODevice&)>& write,
                     QString* error = nullptr);

/// Removes what a killed ReplaceWorkFile left in a folder, which the caller keeps others from writing to.
void RemoveUnfinished(const QString& folder);
