#include "customprogressbar.h"

#include <QApplication>
#include <QProgressDialog>

#include <utility>

CCustomProgressbar::CCustomProgressbar(const QString& title, QWidget* parent)
{
    const bool hasDisplay = qobject_cast<QApplication*>(QCoreApplication::instance())
                            && QGuiApplication::platformName() != QLatin1String("offscreen")
                            && QGuiApplication::platformName() != QLatin1String("minimal");
    if (!hasDisplay)
        return;
    m_dialog = std::make_unique<QProgressDialog>(title, QString(), 0, 100, parent);
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumDuration(500);
}

CCustomProgressbar::CCustomProgressbar(Listener listener) : m_listener(std::move(listener))
{}

CCustomProgressbar::~CCustomProgressbar() = default;

void CCustomProgressbar::SetValue(int percent)
{
    m_value = qBound(0, percent, 100);
    if (m_dialog)
        m_dialog->setValue(m_value);
    if (m_listener)
        m_listener(m_value);
}

int CCustomProgressbar::GetValue() const
{
    return m_value;
}
