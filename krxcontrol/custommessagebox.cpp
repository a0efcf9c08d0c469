#include "custommessagebox.h"

#include "display.h"

#include <utility>

namespace {

CCustomMessageBox::Handler& InstalledHandler()
{
    static CCustomMessageBox::Handler handler;
    return handler;
}

QMessageBox::StandardButton Show(CCustomMessageBox::Kind kind, QWidget* parent, const QString& text,
                                 QMessageBox::StandardButtons buttons)
{
    if (InstalledHandler())
        return InstalledHandler()(kind, text, buttons);
    const bool asks = kind == CCustomMessageBox::Question;
    if (!HasDisplay())
        return asks ? QMessageBox::No : QMessageBox::NoButton;

    QMessageBox box(asks ? QMessageBox::Question : QMessageBox::Information,
                    QCoreApplication::applicationName(), QString(), buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

QMessageBox::StandardButton CCustomMessageBox::information(QWidget* parent, const QString& text,
                                                           QMessageBox::StandardButtons buttons)
{
    return Show(Information, parent, text, buttons);
}

QMessageBox::StandardButton CCustomMessageBox::question(QWidget* parent, const QString& text,
                                                        QMessageBox::StandardButtons buttons)
{
    return Show(Question, parent, text, buttons);
}

CCustomMessageBox::Handler CCustomMessageBox::SetHandler(Handler handler)
{
    return std::exchange(InstalledHandler(), std::move(handler));
}
