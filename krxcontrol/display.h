#pragma once

#include <QApplication>

/// Whether a box can be shown: in a widget application, but not on the offscreen and minimal platforms.
inline bool HasDisplay()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return false;
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}
