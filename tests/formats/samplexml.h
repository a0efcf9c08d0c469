#pragma once

#include "common/fieldtext.h"

#include <QByteArray>
#include <QRegularExpression>

#include <string>

// The samples below "full" hold in every attribute and element a value that no absent one reads as, in at
// least one object. They are written by hand: the only place besides the descriptions that knows the names.

QByteArray FullSample(const char* name);
/// What an object holds after reading a sample, a line each: the file without the name before each line.
QByteArray Told(const char* name);
std::string FirstDifference(const QByteArray& a, const QByteArray& b); ///< the lines; empty when equal

/// The document with no value but those of names that match: what reading it gives is what absent ones give.
QByteArray Hollow(const QByteArray& sample, const QRegularExpression& kept);

/// The names of the sample, but for those that match, all of whose values stand in `hollow` at the same place
/// too. Objects that only a number tells apart count as one.
std::string NamesWithoutOwnValue(const QByteArray& sample, const QByteArray& hollow,
                                 const QRegularExpression& passedOver);

/// The values that are neither empty nor 0, each "name=value" once, but for ids and names that match.
std::string ValuesBesideZero(const QByteArray& xml, const QRegularExpression& passedOver);

/// Values as a file has them, for comparing many with one text.
template <class... T> std::string Row(const T&... values)
{
    std::string row;
    ((fieldtext::Append(row, values), row += '|'), ...);
    return row;
}
