#pragma once

#include <QJsonObject>
#include <QSize>
#include <QString>

/// Writes one line to standard error, "orvan: SUBJECT: what", or "orvan: what" without a subject, and returns
/// the status. "-" is told as standard input. Wrong usage also names the help.
int Fail(int status, const QString& subject, const QString& what);

void SetHelp(const QString& command); ///< the command line that tells the help from now on

void Warn(const QString& subject, const QString& what); ///< the same, marked as a warning

/// To standard output. Controls of the terminal are removed but for line feeds. Names and texts of files must
/// go through OrvanTools::Printable first.
void Print(const QString& text);
void PrintJson(const QJsonObject& object);   ///< UTF-8, whatever the locale; such characters are escaped
void PrintJsonPiece(const QByteArray& json); ///< of such an object

bool FlushOutput(); ///< false when standard output did not take all

QSize ParseSize(const QString& text);               ///< 1920x1080; an invalid size for any other text
bool ParseNumber(const QString& text, int* number); ///< decimal digits alone
