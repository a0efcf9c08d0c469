#pragma once

#include "common/smd5.h"

#include <QSet>
#include <QStringList>

/// Appends every file below a folder, sorted by name within each folder. Links are left out.
void ListFiles(const QString& folder, QStringList& files);

/// Removes, depth first, every sub-folder that is empty once its own are handled. Links are not followed.
void RemoveEmptySubFolders(const QString& folder);

/// Moves an older product folder into the current one: the files that its "ProductList.ini" names by digest
/// came with the application and are deleted, the user's own are moved. Only regular files are touched and
/// nothing is overwritten; what cannot be moved stays where it is, and all of it when the list cannot be
/// read. Both paths end with "/".
void MigrateProductFolder(const QString& oldFolder, const QString& newFolder);
