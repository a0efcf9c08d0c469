#pragma once

#include <QList>
#include <QWidget>

#include <functional>

class DocumentController;
class QAction;
class QFormLayout;
struct SPrintLine;

/// A value of the document that a user may change. The label marks its key.
template <class Value> struct Field
{
    QString label;
    QString tip;
    std::function<Value()> read;
    std::function<void(const Value&)> write;
};

/// A page of fields of the current sender. It follows the document, and nothing is read while it is not seen.
class PageForm : public QWidget
{
    Q_OBJECT

public:
    PageForm(const DocumentController& document, QWidget* parent); ///< [keep]

    void AddNumber(const Field<int>& field, int least, int most, const QString& leastText = QString());
    void AddChoice(const Field<int>& field, const QList<int>& values, const QString& zeroText = QString());
    void AddText(const Field<QString>& field);
    void AddLine(const Field<SPrintLine>& field); ///< a text with its switch
    void AddSwitch(const Field<bool>& field);
    void AddInfo(const QString& label, const std::function<QString()>& read);
    void AddAction(QAction* action);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Follow(QWidget* editor, const QString& label, const QString& tip, const std::function<void()>& show);
    void Renew();

    const DocumentController& m_document;
    QFormLayout* m_form;
    QList<std::function<void()>> m_shows;
};
