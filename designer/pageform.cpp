#include "pageform.h"

#include "documentcontroller.h"
#include "makeaction.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

PageForm::PageForm(const DocumentController& document, QWidget* parent)
    : QWidget(parent), m_document(document), m_form(new QFormLayout(this))
{
    connect(&document, &DocumentController::Changed, this, &PageForm::Renew);
    connect(&document, &DocumentController::SenderChanged, this, &PageForm::Renew);
    connect(&document, &DocumentController::PortStatesChanged, this, &PageForm::Renew);
}

void PageForm::Follow(QWidget* editor, const QString& label, const QString& tip,
                      const std::function<void()>& show)
{
    editor->setAccessibleName(PlainLabel(label));
    editor->setToolTip(tip);
    m_shows.append([editor, show] {
        const QSignalBlocker blocker(editor);
        show();
    });
}

void PageForm::AddNumber(const Field<int>& field, int least, int most, const QString& leastText)
{
    auto* editor = new QSpinBox(this);
    editor->setRange(least, most);
    editor->setSpecialValueText(leastText);
    editor->setKeyboardTracking(false); // a number that is being typed is none yet
    connect(editor, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, field](int value) {
        field.write(value);
        Renew();
    });
    Follow(editor, field.label, field.tip, [editor, field] { editor->setValue(field.read()); });
    m_form->addRow(field.label, editor);
}

void PageForm::AddChoice(const Field<int>& field, const QList<int>& values, const QString& zeroText)
{
    auto* editor = new QComboBox(this);
    const auto add = [editor, zeroText](int value) {
        editor->addItem(value == 0 ? zeroText : QString::number(value), value);
    };
    std::for_each(values.begin(), values.end(), add);
    connect(editor, QOverload<int>::of(&QComboBox::activated), this, [this, editor, field] {
        field.write(editor->currentData().toInt());
        Renew();
    });
    Follow(editor, field.label, field.tip, [editor, field, add] {
        if (editor->findData(field.read()) < 0)
            add(field.read()); // as a file has it
        editor->setCurrentIndex(editor->findData(field.read()));
    });
    m_form->addRow(field.label, editor);
}

void PageForm::AddText(const Field<QString>& field)
{
    auto* editor = new QLineEdit(this);
    connect(editor, &QLineEdit::editingFinished, this, [editor, field] { field.write(editor->text()); });
    Follow(editor, field.label, field.tip, [editor, field] { editor->setText(field.read()); });
    m_form->addRow(field.label, editor);
}

void PageForm::AddLine(const Field<SPrintLine>& field)
{
    auto* on = new QCheckBox(field.label, this);
    auto* editor = new QLineEdit(this);
    const auto take = [on, editor, field] { field.write({on->isChecked(), editor->text()}); };
    connect(on, &QCheckBox::toggled, this, take);
    connect(editor, &QLineEdit::editingFinished, this, take);
    Follow(on, field.label, field.tip, [on, field] { on->setChecked(field.read().enable); });
    Follow(editor, field.label, field.tip, [editor, field] { editor->setText(field.read().text); });
    m_form->addRow(on, editor);
}

void PageForm::AddSwitch(const Field<bool>& field)
{
    auto* editor = new QCheckBox(field.label, this);
    connect(editor, &QCheckBox::toggled, this, field.write);
    Follow(editor, field.label, field.tip, [editor, field] { editor->setChecked(field.read()); });
    m_form->addRow(editor);
}

void PageForm::AddInfo(const QString& label, const std::function<QString()>& read)
{
    auto* text = new QLabel(this);
    text->setWordWrap(true);
    Follow(text, label, QString(), [text, read] { text->setText(read()); });
    m_form->addRow(label, text);
}

void PageForm::AddAction(QAction* action)
{
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::StrongFocus);
    m_form->addRow(button);
}

void PageForm::Renew()
{
    if (!isVisible())
        return;
    const bool hasSender = m_document.GetSender() != nullptr;
    setEnabled(hasSender);
    for (int i = 0; hasSender && i < m_shows.size(); ++i)
        m_shows[i]();
}

void PageForm::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Renew();
}
