#pragma once

#include <QString>

// Where the user's files of the application live. Nothing is created here.

QString DocumentsFolder(); ///< the platform's documents folder, no trailing "/"
QString ProductFolder();   ///< the product library's root, with a trailing "/"
