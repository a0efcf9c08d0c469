#pragma once

#include "documentcontroller.h"

class QMenu;

/// Layouts of one sender or port from other projects.
class ImportActions : public QObject
{
    Q_OBJECT

public:
    ImportActions(DocumentController& document, QWidget& window); ///< [keep] both

    void AddTo(QMenu& menu);
    bool Import(const LayoutImport& wanted); ///< asks when no undo would bring back what is there

signals:
    void Told(const QString& text); ///< of what went well

private:
    void Choose(bool ofPort, const QString& title);
    bool AskHow(LayoutImport* wanted);

    DocumentController& m_document;
    QWidget& m_window;
};
