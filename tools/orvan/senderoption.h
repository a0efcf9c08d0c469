#pragma once

#include <QString>

class QCommandLineParser;

/// Adds --sender N, which chooses a sender of the project, from 1.
void AddSenderOption(QCommandLineParser& parser, const QString& help);

/// What counts from 1; 0 when the option is not given. False after wrong usage, which was told.
bool ReadOrdinal(const QCommandLineParser& parser, const char* option, int* number);

/// Reads the project and finds its sender of that number, counted from 0; for 0 the current one. `output` may
/// not be the project. Returns the exit status. On failure standard error says why.
int OpenSender(const QString& file, const QString& output, int number, int* sender);
