#pragma once

#include "custommessagebox.h"

#include <QStringList>

/// Takes the texts of message boxes while it lives.
class MessageRecorder
{
public:
    MessageRecorder()
        : m_before(CCustomMessageBox::SetHandler(
            [this](CCustomMessageBox::Kind, const QString& text, QMessageBox::StandardButtons) {
                m_texts.append(text);
                return QMessageBox::Ok;
            }))
    {}
    ~MessageRecorder() { CCustomMessageBox::SetHandler(m_before); }
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;

    QStringList Take() { return std::exchange(m_texts, {}); }

private:
    QStringList m_texts;
    CCustomMessageBox::Handler m_before;
};
