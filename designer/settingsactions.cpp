#include "settingsactions.h"

#include "makeaction.h"

#include <OrvanData/orvandata.h>

#include <QActionGroup>
#include <QMenu>

SettingsActions::SettingsActions(QObject* parent) : QObject(parent)
{}

void SettingsActions::AddTo(QMenu& menu)
{
    menu.setToolTipsVisible(true);
    const bool isChinese = GetConfigData()->GetLanguageType() == LanguageChinese; // else English
    QMenu* languages = menu.addMenu(tr("&Language"));
    auto* group = new QActionGroup(this);
    const QString tip = tr("Show the program in this language from now on");
    languages->menuAction()->setStatusTip(tip);
    for (const ELanguageType language : {LanguageEnglish, LanguageChinese}) { // each by its own name
        const bool isOther = language == LanguageChinese;
        const QString name = isOther ? QStringLiteral("中文(&Z)") : QStringLiteral("&English");
        const auto choose = [this, language] {
            GetConfigData()->SetAutoSelectLanguage(false);
            GetConfigData()->SetLanguage(language);
            emit LanguageChanged();
        };
        group->addAction(AddSwitch(*languages, this, name, tip, {}, isChinese == isOther, choose));
    }
    AddSwitch(menu, this, tr("&Snap to neighbours and canvas"),
              tr("What is dragged keeps to edges that are near; not while Alt is held"), {},
              GetConfigData()->IsEnableAttraction(),
              [](bool on) { GetConfigData()->SetEnableAttraction(on); });
}
