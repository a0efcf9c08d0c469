#pragma once

#include <QString>

/// Draws a sender of the open document, counted from 0, into a file. The ending of the name says the format.
/// Returns the exit status. On failure standard error says why, and the file stays as it was.
int WriteDrawing(const QString& file, int sender, int width);

bool IsDrawingName(const QString& file); ///< whether the ending is one that WriteDrawing knows
