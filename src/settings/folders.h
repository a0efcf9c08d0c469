#pragma once

#include <QSet>
#include <QString>

// Where the user's files of the application live. The folders are not created by asking.

QString DocumentsFolder(); ///< the platform's documents folder, no trailing "/"
QString ProductFolder();   ///< the product library's root, with a trailing "/"

/// Makes the folders of a relative file path below `base`. False when one of them is a link or a file, or
/// cannot be made. `made` remembers from call to call which folders were made.
bool MakeFoldersOf(const QString& base, const QString& relativeFile, QSet<QString>* made = nullptr,
                   QString* error = nullptr);
