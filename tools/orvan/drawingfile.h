#pragma once

#include <QString>

/// Draws a sender of the open document, counted from 0, into a file; the name's ending names the format. The
/// exit status; why it failed is said on standard error, and the file is as it was then.
int WriteDrawing(const QString& file, int sender, int width);

bool IsDrawingName(const QString& file); ///< whether the ending is one that WriteDrawing knows
