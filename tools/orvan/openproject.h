#pragma once

#include <QString>

/// Loads a project into the open document. Says on standard error why it cannot be read (false), or what of
/// it was passed over.
bool OpenProject(const QString& file);

/// Saves the open document as an archive. False, said on standard error, when all or a part is not there.
bool SaveProject(const QString& file);

bool IsArchive(const QString& file); ///< else a bare document
