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
    const auto add = [&](const QString& name, ELanguageType language) { // each by its own name
        QAction* action = MakeAction(this, name, tr("Show the program in this language from now on"));
        action->setCheckable(true);
        action->setChecked(isChinese == (language == LanguageChinese));
        group->addAction(action);
        languages->addAction(action);
        connect(action, &QAction::triggered, this, [this, language] {
            GetConfigData()->SetAutoSelectLanguage(false);
            GetConfigData()->SetLanguage(language);
            emit LanguageChanged();
        });
    };
    add(QStringLiteral("&English"), LanguageEnglish);
    add(QStringLiteral("中文(&Z)"), LanguageChinese);
    QAction* snap = MakeAction(this, tr("&Snap to neighbours and canvas"),
                               tr("What is dragged keeps to edges that are near; not while Alt is held"));
    snap->setCheckable(true);
    snap->setChecked(GetConfigData()->IsEnableAttraction());
    connect(snap, &QAction::toggled, this, [](bool on) { GetConfigData()->SetEnableAttraction(on); });
    menu.addAction(snap);
}
