#pragma once

#include <QIODevice>
#include <QStringList>

#include <functional>

class QCommandLineParser;

QString OutputName(const QString& argument); ///< as messages call what is written

/// Adds --format, which names the form of what goes to standard output.
void AddFormatOption(QCommandLineParser& parser, const QStringList& forms);

/// The form of an output: --format when it is "-", else the ending of its name in lower case. It is one of
/// `forms`, and for "-" one of `streamed`. Empty after wrong usage, which was told.
QString OutputForm(const QCommandLineParser& parser, const QString& output, const QStringList& forms,
                   const QStringList& streamed);

/// Writes a file as one step, or to standard output for "-". `write` fills it in order, and stops and returns
/// false when the device takes no more. Returns the exit status. On failure standard error says why, and the
/// file stays as it was. A signal takes effect at the next write.
int WriteOutput(const QString& file, const std::function<bool(QIODevice&)>& write);
