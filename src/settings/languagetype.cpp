#include "settings/languagetype.h"

#include <QLocale>

namespace {

struct Language
{
    ELanguageType code;
    QLocale::Language locale;
    const char* translation;
};

// The first one answers for all that are not listed.
constexpr Language kLanguages[] = {
    {LanguageEnglish, QLocale::English, "orvandata_en.qm"},
    {LanguageChinese, QLocale::Chinese, "orvandata_zh_CN.qm"},
    {LanguageFrench, QLocale::French, "orvandata_fr.qm"},
    {LanguageJapanese, QLocale::Japanese, "orvandata_ja.qm"},
    {LanguageKorean, QLocale::Korean, "orvandata_ko.qm"},
    {LanguagePortuguese, QLocale::Portuguese, "orvandata_pt.qm"},
    {LanguageRussian, QLocale::Russian, "orvandata_ru.qm"},
    {LanguageSpanish, QLocale::Spanish, "orvandata_es.qm"},
};

} // namespace

ELanguageType GetSystemLanguage()
{
    const QLocale::Language system = QLocale().language();
    for (const Language& language : kLanguages) {
        if (language.locale == system)
            return language.code;
    }
    return kLanguages[0].code;
}

QString GetTranslationFileName(ELanguageType code)
{
    for (const Language& language : kLanguages) {
        if (language.code == code)
            return QLatin1String(language.translation);
    }
    return QLatin1String(kLanguages[0].translation);
}
