#pragma once

#include <QWidget>

#include <functional>

class DocumentController;
class QAction;
class QFormLayout;
class SenderEdits;
struct SPrintLine;

/// A page of labelled fields. Each shows a value of the document whenever that changes, and hands on what the
/// user makes of it. Nothing is read while the page is not seen.
class PageForm : public QWidget
{
    Q_OBJECT

public:
    PageForm(DocumentController& document, SenderEdits& edits, QWidget* parent); ///< [keep] both

protected:
    template <class Value> using Read = std::function<Value()>;
    template <class Value> using Write = std::function<void(const Value&)>;

    /// An empty `leastText` shows the least number as it is.
    void AddNumber(const QString& label, const QString& tip, int least, int most, const QString& leastText,
                   const Read<int>& read, const Write<int>& write);
    void AddChoice(const QString& label, const QString& tip, const QList<int>& values,
                   const std::function<QString(int)>& text, const Read<int>& read, const Write<int>& write);
    void AddText(const QString& label, const QString& tip, const Read<QString>& read,
                 const Write<QString>& write);
    void AddLine(const QString& label, const QString& tip, const Read<SPrintLine>& read,
                 const Write<SPrintLine>& write); ///< a text with its switch
    void AddSwitch(const QString& label, const QString& tip, const Read<bool>& read,
                   const Write<bool>& write);
    void AddInfo(const QString& label, const Read<QString>& read);
    void AddAction(QAction* action);

    void showEvent(QShowEvent* event) override;

    DocumentController& m_document;
    SenderEdits& m_edits;

private:
    void Renew();
    void Add(const QString& label, const QString& tip, QWidget* field, const std::function<void()>& show);

    QFormLayout* m_form;
    QList<std::function<void()>> m_fields;
};
