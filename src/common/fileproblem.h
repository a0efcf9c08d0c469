#pragma once

#include "common/failure.h"

// What is told of a file or folder that the system refuses: which one, and the system's reason.

QString CannotRead(const QString& path, const QString& reason);
QString CannotWrite(const QString& path, const QString& reason); ///< the reason may be empty
QString CannotMakeFolder(const QString& path, int error);        ///< as errno
QString NotRegular(const QString& path);

/// Makes a folder with all its parents. A link to a folder counts as one.
bool MakeFolder(const QString& path, QString* error = nullptr);

/// Why no file can be made and written in a folder, for callers whose own attempt told no reason.
QString WhyNotWritable(const QString& folder);
