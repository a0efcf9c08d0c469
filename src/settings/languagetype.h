#pragma once

#include "common/export.h"

#include <QString>

/// Interface languages by their Windows language identifier.
enum ELanguageType : int
{
    LanguageEnglish = 1033,
    LanguageSpanish = 1034,
    LanguageFrench = 1036,
    LanguageJapanese = 1041,
    LanguageKorean = 1042,
    LanguageRussian = 1049,
    LanguageChinese = 2052,
    LanguagePortuguese = 2070,
};

ORVANDATA_EXPORT ELanguageType GetSystemLanguage(); ///< of the locale; English when not in the list
ORVANDATA_EXPORT QString GetTranslationFileName(ELanguageType language); ///< unlisted: that of English
