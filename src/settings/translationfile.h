#pragma once

#include <QString>

/// The translation to load: `described` when it is there, else the file of that name in the folder that the
/// build has set, else in the folder "Language" beside this library. Empty when there is none.
QString FindTranslation(const QString& described);
