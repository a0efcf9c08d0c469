#pragma once

#include <QAction>

inline QKeySequence Keys(const char* keys) ///< as "Ctrl+T"
{
    return QKeySequence::fromString(QLatin1String(keys), QKeySequence::PortableText);
}

/// An action with a tip that names its key too.
inline QAction* MakeAction(QObject* parent, const QString& text, const QString& tip,
                           const QKeySequence& key = {})
{
    auto* action = new QAction(text, parent);
    action->setShortcut(key);
    action->setStatusTip(tip);
    action->setToolTip(
        key.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)));
    return action;
}
