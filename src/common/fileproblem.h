#pragma once

#include "common/failure.h"

// Messages about a file or folder that the system refuses, with the reason of the system.

QString CannotRead(const QString& path, const QString& reason);
QString CannotWrite(const QString& path, const QString& reason); ///< the reason may be empty
QString CannotMakeFolder(const QString& path, int error);        ///< as errno
QString NotRegular(const QString& path);

/// Makes a folder with all its parents. A link to a folder counts as one.
bool MakeFolder(const QString& path, QString* error = nullptr);

/// Whether a file can be written in a folder; tried, and removed again.
bool CanWriteIn(const QString& folder, QString* error = nullptr);

/// Why no file can be written in a folder, for a caller that got no reason itself.
QString WhyNotWritable(const QString& folder);
