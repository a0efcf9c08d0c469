#include "customprogressbar.h"

#include "display.h"

#include <QProgressDialog>

#include <utility>

CCustomProgressbar::CCustomProgressbar(const QString& title, QWidget* parent)
{
    if (!HasDisplay())
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
