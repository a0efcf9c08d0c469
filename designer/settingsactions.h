#pragma once

#include <QObject>

class QMenu;

/// What the user has chosen once for all projects; kept with the library's settings.
class SettingsActions : public QObject
{
    Q_OBJECT

public:
    explicit SettingsActions(QObject* parent);

    void AddTo(QMenu& menu);

signals:
    void LanguageChanged(); ///< windows that are there keep the one before
};
