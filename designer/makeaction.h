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
