#pragma once

#include <QByteArray>
#include <QString>

class QFile;
class QIODevice;

/// Opens a file that somebody else named. Only a regular one: a pipe could keep the program waiting for ever,
/// a device could give without end. False: `error`, when given, says why.
bool OpenInput(QFile& file, QString* error = nullptr);

/// Reads such a file whole; one of more than `most` bytes is refused.
bool ReadInput(const QString& path, qint64 most, QByteArray* content, QString* error = nullptr);

/// Copies what is left of one device to another.
bool CopyContent(QIODevice& from, QIODevice& to);
