#pragma once

#include <QAction>
#include <QRegularExpression>

inline QKeySequence Keys(const char* keys) ///< as "Ctrl+T"
{
    return QKeySequence::fromString(QLatin1String(keys), QKeySequence::PortableText);
}

/// A label without its mnemonic, which stands in brackets in Chinese, and without its end.
inline QString PlainLabel(const QString& label)
{
    static const QRegularExpression extras(QStringLiteral("\\(&.\\)|[&…:：]"));
    return QString(label).remove(extras);
}

/// An action with a tip that names its key too.
inline QAction* MakeAction(QObject* parent, const QString& text, const QString& tip,
                           const QKeySequence& key = {})
{
    auto* action = new QAction(text, parent);
    action->setIconText(PlainLabel(text));
    action->setShortcut(key);
    action->setStatusTip(tip);
    action->setToolTip(
        key.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)));
    return action;
}

/// The same in a menu, or in a bar. `act` belongs to the owner.
template <typename Act>
QAction* AddAction(QWidget& menu, QObject* owner, const QString& text, const QString& tip,
                   const QKeySequence& key, Act act)
{
    QAction* action = MakeAction(owner, text, tip, key);
    QObject::connect(action, &QAction::triggered, owner, act);
    menu.addAction(action);
    return action;
}

/// One that is on or off; `act` takes which.
template <typename Act>
QAction* AddSwitch(QWidget& menu, QObject* owner, const QString& text, const QString& tip,
                   const QKeySequence& key, bool isOn, Act act)
{
    QAction* action = AddAction(menu, owner, text, tip, key, act);
    action->setCheckable(true);
    action->setChecked(isOn);
    return action;
}
