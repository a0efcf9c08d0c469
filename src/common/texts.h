#pragma once

#include <QCoreApplication>

/// What the user reads: `Texts::tr("…")` gives a text in the user's language, its source is Chinese.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OrvanData)
};
