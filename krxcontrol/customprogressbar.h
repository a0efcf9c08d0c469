#pragma once

#include "krxexport.h"

#include <QString>

#include <functional>
#include <memory>

class QProgressDialog;
class QWidget;

/// Progress of a long load or save, 0 to 100. Shows a modal dialog when there is a display and no listener;
/// else it only counts.
class KRXCONTROL_EXPORT CCustomProgressbar
{
public:
    using Listener = std::function<void(int percent)>;

    explicit CCustomProgressbar(const QString& title = QString(), QWidget* parent = nullptr);
    explicit CCustomProgressbar(Listener listener);
    ~CCustomProgressbar();

    CCustomProgressbar(const CCustomProgressbar&) = delete;
    CCustomProgressbar& operator=(const CCustomProgressbar&) = delete;

    void SetValue(int percent); ///< clamped to 0 to 100
    int GetValue() const;

private:
    int m_value = 0;
    Listener m_listener;
    std::unique_ptr<QProgressDialog> m_dialog;
};
