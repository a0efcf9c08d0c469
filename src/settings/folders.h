#pragma once

#include <QString>

// Where the user's files of the application live. The folders are not created by asking.

QString DocumentsFolder(); ///< the platform's documents folder, no trailing "/"
QString ProductFolder();   ///< the product library's root, with a trailing "/"

/// Makes the folders of a relative file path, one by one below `base`; false where one is a link or a file or
/// cannot be made.
bool MakeFoldersOf(const QString& base, const QString& relativeFile);
