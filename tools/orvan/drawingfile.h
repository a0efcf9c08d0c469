#pragma once

#include <orvantools/layoutdrawing.h>

#include <QString>

class QCommandLineParser;

void AddDrawingForm(QCommandLineParser& parser); ///< --format

/// "png", "svg" or "pdf", as --format or the ending of the name says. Empty after wrong usage, which was
/// told.
QString DrawingForm(const QCommandLineParser& parser, const QString& output);

/// Draws a sender of the open document into a file of that form. Returns the exit status. On failure standard
/// error says why, and the file stays as it was.
int WriteDrawing(const QString& file, const QString& form, const OrvanTools::DrawingOptions& options);
