#pragma once

#include <QString>

/// Results of the functions on parameter blocks and files.
namespace params {

constexpr quint32 kDone = 0;
constexpr quint32 kFailed = 0x80004005;
constexpr quint32 kTypeDiffers = 0xE0830003;  ///< the file is of another processor type than the sender
constexpr quint32 kImportFailed = 0xE0830013; ///< the file does not hold what the sender takes

struct Outcome
{
    quint32 code = kDone;
    QString why;       ///< for the user; a code of success may have a reason too
    bool told = false; ///< in a message box
};

Outcome Told(quint32 code); ///< by what the code means, if the user is to know
Outcome Told(quint32 code, const QString& why);

/// Shows the box of an outcome that has one. The host's code runs meanwhile.
void Show(const Outcome& outcome);

} // namespace params
