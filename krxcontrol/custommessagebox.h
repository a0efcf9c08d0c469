#pragma once

#include "krxexport.h"

#include <QMessageBox>
#include <QString>

#include <functional>

/// Modal message boxes. Texts are plain text, never markup. Where no display is (no widget application, or
/// the offscreen and minimal platforms) and no handler is installed, no box opens and the default answers
/// stand: nothing for an information, No for a question.
class KRXCONTROL_EXPORT CCustomMessageBox
{
public:
    enum Kind
    {
        Information,
        Question
    };

    /// Answers a box instead of the user: kind, text and buttons offered; the result is the button pressed.
    using Handler =
        std::function<QMessageBox::StandardButton(Kind, const QString&, QMessageBox::StandardButtons)>;

    static QMessageBox::StandardButton information(QWidget* parent, const QString& text,
                                                   QMessageBox::StandardButtons buttons = QMessageBox::Ok);
    static QMessageBox::StandardButton question(QWidget* parent, const QString& text,
                                                QMessageBox::StandardButtons buttons = QMessageBox::Yes
                                                                                       | QMessageBox::No);

    /// Installs a handler (an empty one opens boxes again) and returns the one before.
    static Handler SetHandler(Handler handler);
};
