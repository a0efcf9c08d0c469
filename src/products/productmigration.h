#pragma once

#include "common/smd5.h"

#include <QSet>
#include <QStringList>

/// Appends every file below a folder, sorted by name within each folder. Links are left out.
void ListFiles(const QString& folder, QStringList& files);

/// Removes all empty sub-folders, also those that hold nothing but empty folders. Links are not followed.
void RemoveEmptySubFolders(const QString& folder);

/// Moves an older product folder into the current one. Its "ProductList.ini" names, by digest, the files that
/// came with the application; these are deleted. The other files are the user's own and are moved. Only
/// regular files are touched and nothing is overwritten. What cannot be moved stays. When the list cannot be
/// read, everything stays. Both paths end with "/".
void MigrateProductFolder(const QString& oldFolder, const QString& newFolder);
