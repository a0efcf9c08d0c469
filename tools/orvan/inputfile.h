#pragma once

#include <QString>

/// Whether an argument stands for standard input or output: "-".
bool IsStream(const QString& argument);

QString InputName(const QString& argument); ///< as messages call what is read

/// The file that an argument names. For "-" it is one in the private folder with all that standard input
/// gave, which is read at the first call. Empty when that is too much or fails; standard error says so.
QString InputPath(const QString& argument);
