#pragma once

#include "pageform.h"

class CSender;

/// The current sender: names, number of ports, canvas, signal.
class SenderPage : public PageForm
{
    Q_OBJECT

public:
    SenderPage(DocumentController& document, SenderEdits& edits, QWidget* parent); ///< [keep] both

private:
    CSender& Sender() const;
    int Index() const;
    void AddNames();
    void AddPlace();
    void AddSize(const QString& across, const QString& down, const QString& tip, bool mayBeNegative,
                 const Read<QSize>& read, const Write<QSize>& write);
    void AddSignal();
};
