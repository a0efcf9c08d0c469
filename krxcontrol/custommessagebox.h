#pragma once

#include "krxexport.h"

#include <QMessageBox>
#include <QString>

#include <functional>

/// Modal message boxes. Texts are plain text, never markup. Without a display (no widget application, or the
/// offscreen or minimal platform) and without a handler, no box opens. Then the default answers stand:
/// nothing for an information, No for a question.
class KRXCONTROL_EXPORT CCustomMessageBox
{
public:
    enum Kind
    {
        Information,
        Question
    };

    /// Answers a box in place of the user: takes kind, text and buttons, returns the button pressed.
    using Handler =
        std::function<QMessageBox::StandardButton(Kind, const QString&, QMessageBox::StandardButtons)>;

    static QMessageBox::StandardButton information(QWidget* parent, const QString& text,
                                                   QMessageBox::StandardButtons buttons = QMessageBox::Ok);
    static QMessageBox::StandardButton question(QWidget* parent, const QString& text,
                                                QMessageBox::StandardButtons buttons = QMessageBox::Yes
                                                                                       | QMessageBox::No);

    /// Installs a handler and returns the one before. An empty handler opens boxes again.
    static Handler SetHandler(Handler handler);
};
