#pragma once

#include <QJsonObject>
#include <QSize>
#include <QString>

/// Writes one line to standard error, "orvan: SUBJECT: what", or "orvan: what" without a subject, and returns
/// the status.
int Fail(int status, const QString& subject, const QString& what);

void Warn(const QString& subject, const QString& what); ///< the same, marked as a warning

void Print(const QString& text);           ///< to standard output
void PrintJson(const QJsonObject& object); ///< UTF-8, whatever the locale
bool FlushOutput();                        ///< false when standard output did not take all

QSize ParseSize(const QString& text);               ///< 1920x1080; an invalid size for any other text
bool ParseNumber(const QString& text, int* number); ///< decimal digits alone
