#pragma once

#include <QByteArray>
#include <QString>

class QFile;
class QIODevice;

/// Opens a file that somebody else named. It must be a regular file: a pipe could keep the program waiting, a
/// device could give without end. On failure `error` says why.
bool OpenInput(QFile& file, QString* error = nullptr);

/// Reads such a file whole; one of more than `most` bytes is refused.
bool ReadInput(const QString& path, qint64 most, QByteArray* content, QString* error = nullptr);

/// Copies what is left of one device to another.
bool CopyContent(QIODevice& from, QIODevice& to);
