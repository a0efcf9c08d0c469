#pragma once

#include <QList>
#include <QScrollArea>
#include <QTimer>

#include <functional>

class DocumentController;
class QAction;
class QFormLayout;
class QLineEdit;
struct SPrintLine;

/// A value of the document that a user may change.
template <class Value> struct Field
{
    QString label;
    QString tip;
    std::function<Value()> read;
    std::function<void(const Value&)> write;
};

/// A page of fields of the current sender. It follows the document, and nothing is read while it is not seen.
/// What is being typed stays until it is finished: by Enter, or by leaving the field.
class PageForm : public QScrollArea
{
    Q_OBJECT

public:
    PageForm(const DocumentController& document, QWidget* parent); ///< [keep]

    void AddNumber(const Field<int>& field, int least, int most, const QString& leastText = QString());
    void AddChoice(const Field<int>& field, const QList<int>& values, const QString& zeroText = QString());
    void AddText(const Field<QString>& field, const QString& emptyText = QString());
    void AddLine(const Field<SPrintLine>& field); ///< a text with its switch
    void AddSwitch(const Field<bool>& field);
    void AddInfo(const QString& label, const std::function<QString()>& read, const QString& tip = QString(),
                 const QString& emptyText = QString());
    void AddAction(QAction* action);

    /// Takes what is being typed, on whatever page: for what is about to read the document.
    static void FinishTyping();

    QSize minimumSizeHint() const override;

protected:
    /// What the fields are about, before they are read. False: there is nothing, and the page is empty.
    virtual bool TakeSubject();
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void Follow(QWidget* editor, const QString& label, const QString& tip, const std::function<void()>& show);
    QLineEdit* MakeLine(const std::function<void(const QString& text)>& take);
    void Renew();

    const DocumentController& m_document;
    QFormLayout* m_form;
    QTimer m_wait; ///< changes that follow each other quickly are shown once
    QList<std::function<void()>> m_shows;
};
