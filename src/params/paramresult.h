#pragma once

#include "params/paramcodes.h"

#include <QString>

namespace params {

/// The result of a function on a parameter file.
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
