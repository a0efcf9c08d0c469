#pragma once

#include <QString>

class CProjectData;

/// Loads a project, "-" for the one on standard input, into the open document. False when it cannot be read.
/// Standard error says why, or what was passed over.
bool OpenProject(const QString& file);
bool OpenProject(const QString& file, CProjectData& project); ///< the same into any document

/// Saves the open document as an archive. False when some of it is not there; standard error says why.
bool SaveProject(const QString& file);

bool IsArchive(const QString& file); ///< else a bare document
