#pragma once

#include <QJsonObject>
#include <QSize>
#include <QString>

/// Writes one line to standard error, "orvan: SUBJECT: what", or "orvan: what" without a subject, and returns
/// the status.
int Fail(int status, const QString& subject, const QString& what);

void Warn(const QString& subject, const QString& what); ///< the same, marked as a warning

/// To standard output. Only the line feeds of what a terminal obeys are kept, so names and texts of files go
/// through OrvanTools::Printable before they are put into lines.
void Print(const QString& text);
void PrintJson(const QJsonObject& object); ///< UTF-8, whatever the locale; such characters are escaped

/// An object of one list, as PrintJson would print it, object by object: the whole may be large.
class JsonListPrinter
{
public:
    explicit JsonListPrinter(const char* name);
    ~JsonListPrinter(); ///< ends the list and the object
    JsonListPrinter(const JsonListPrinter&) = delete;
    JsonListPrinter& operator=(const JsonListPrinter&) = delete;

    void Add(const QJsonObject& object);

private:
    bool m_empty = true;
};

bool FlushOutput(); ///< false when standard output did not take all

QSize ParseSize(const QString& text);               ///< 1920x1080; an invalid size for any other text
bool ParseNumber(const QString& text, int* number); ///< decimal digits alone
