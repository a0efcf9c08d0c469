#pragma once

#include "custommessagebox.h"

#include <utility>

/// Takes the texts of message boxes while it lives, and answers each.
struct MessageRecorder
{
    ~MessageRecorder() { CCustomMessageBox::SetHandler(before); }
    QStringList Take() { return std::exchange(texts, {}); }

    QStringList texts;
    QMessageBox::StandardButton answer = QMessageBox::No;
    CCustomMessageBox::Handler before =
        CCustomMessageBox::SetHandler([this](auto, const QString& text, auto) {
            texts.append(text);
            return answer;
        });
};
