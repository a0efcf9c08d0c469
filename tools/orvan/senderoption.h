#pragma once

#include <QString>

class QCommandLineParser;

/// Adds --sender N, which chooses a sender of the project, from 1.
void AddSenderOption(QCommandLineParser& parser, const QString& help);

/// 0 when it is not given. False after wrong usage, which was told.
bool ReadSenderOption(const QCommandLineParser& parser, int* number);

/// The sender of that number, counted from 0, in the open document; for 0 the current one. Returns the exit
/// status. On failure standard error says why.
int FindSender(const QString& file, int number, int* sender);
