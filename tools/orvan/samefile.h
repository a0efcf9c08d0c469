#pragma once

class QString;

/// Whether an input and an output are one file, also through links. "-" is the file that standard input or
/// output leads to. False when one of them leads nowhere.
bool IsSameFile(const QString& input, const QString& output);
