#pragma once

#include "documentcontroller.h"

#include <functional>
#include <vector>

class QMenu;

/// What goes to others and comes from them: drawings of the current sender, sheets for the crew, lists, and
/// layouts of one sender or port.
class ExchangeActions : public QObject
{
    Q_OBJECT

public:
    ExchangeActions(DocumentController& document, QWidget& window); ///< [keep] both

    void AddTo(QMenu& menu);
    bool Export(size_t kind, const QString& path); ///< as the menu lists them; the ending says the form
    bool Import(const LayoutImport& wanted);       ///< asks when no undo would bring back what is there

signals:
    void Told(const QString& text); ///< of what went well

private:
    struct Kind
    {
        QString text;
        QString tip;
        const char* tail; ///< of the name proposed
        QStringList endings;
        std::function<QString(const QString& path)> write; ///< gives back why it could not
    };

    void ChooseExport(size_t kind);
    void ChooseImport(bool ofPort, const QString& title);
    bool AskHow(LayoutImport* wanted);
    void Tell(const QString& text);

    DocumentController& m_document;
    QWidget& m_window;
    std::vector<Kind> m_kinds;
};
