#include "pageform.h"

#include "documentcontroller.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

namespace {

QString WithoutMarks(QString label)
{
    return label.remove(QLatin1Char('&')).remove(QLatin1Char(':'));
}

/// The cursor stays while the text does.
void ShowText(QLineEdit* field, const QString& text)
{
    if (field->text() != text)
        field->setText(text);
}

} // namespace

PageForm::PageForm(DocumentController& document, SenderEdits& edits, QWidget* parent)
    : QWidget(parent), m_document(document), m_edits(edits), m_form(new QFormLayout(this))
{
    connect(&document, &DocumentController::Changed, this, &PageForm::Renew);
    connect(&document, &DocumentController::SenderChanged, this, &PageForm::Renew);
    connect(&document, &DocumentController::PortStatesChanged, this, &PageForm::Renew);
}

void PageForm::Add(const QString& label, const QString& tip, QWidget* field,
                   const std::function<void()>& show)
{
    field->setAccessibleName(WithoutMarks(label));
    field->setToolTip(tip);
    m_fields.append([field, show] {
        const QSignalBlocker blocker(field);
        show();
    });
}

void PageForm::AddNumber(const QString& label, const QString& tip, int least, int most,
                         const QString& leastText, const Read<int>& read, const Write<int>& write)
{
    auto* field = new QSpinBox(this);
    field->setRange(least, most);
    field->setSpecialValueText(leastText);
    field->setKeyboardTracking(false); // a number that is being typed is none yet
    connect(field, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, write](int value) {
        write(value);
        Renew();
    });
    Add(label, tip, field, [field, read] { field->setValue(read()); });
    m_form->addRow(label, field);
}

void PageForm::AddChoice(const QString& label, const QString& tip, const QList<int>& values,
                         const std::function<QString(int)>& text, const Read<int>& read,
                         const Write<int>& write)
{
    auto* field = new QComboBox(this);
    for (const int value : values)
        field->addItem(text(value), value);
    connect(field, QOverload<int>::of(&QComboBox::activated), this, [this, field, write](int index) {
        write(field->itemData(index).toInt());
        Renew();
    });
    Add(label, tip, field, [field, text, read] {
        if (field->findData(read()) < 0)
            field->addItem(text(read()), read()); // as a file has it
        field->setCurrentIndex(field->findData(read()));
    });
    m_form->addRow(label, field);
}

void PageForm::AddText(const QString& label, const QString& tip, const Read<QString>& read,
                       const Write<QString>& write)
{
    auto* field = new QLineEdit(this);
    connect(field, &QLineEdit::editingFinished, this, [this, field, write] {
        write(field->text());
        Renew();
    });
    Add(label, tip, field, [field, read] { ShowText(field, read()); });
    m_form->addRow(label, field);
}

void PageForm::AddLine(const QString& label, const QString& tip, const Read<SPrintLine>& read,
                       const Write<SPrintLine>& write)
{
    auto* on = new QCheckBox(label, this);
    auto* field = new QLineEdit(this);
    const auto take = [this, on, field, write] {
        write({on->isChecked(), field->text()});
        Renew();
    };
    connect(on, &QCheckBox::toggled, this, take);
    connect(field, &QLineEdit::editingFinished, this, take);
    Add(label, tip, on, [on, read] { on->setChecked(read().enable); });
    Add(label, tip, field, [field, read] { ShowText(field, read().text); });
    m_form->addRow(on, field);
}

void PageForm::AddSwitch(const QString& label, const QString& tip, const Read<bool>& read,
                         const Write<bool>& write)
{
    auto* field = new QCheckBox(label, this);
    connect(field, &QCheckBox::toggled, this, [this, write](bool on) {
        write(on);
        Renew();
    });
    Add(label, tip, field, [field, read] { field->setChecked(read()); });
    m_form->addRow(field);
}

void PageForm::AddInfo(const QString& label, const Read<QString>& read)
{
    auto* field = new QLabel(this);
    field->setWordWrap(true);
    field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Add(label, QString(), field, [field, read] { field->setText(read()); });
    m_form->addRow(label, field);
}

void PageForm::AddAction(QAction* action)
{
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::StrongFocus);
    m_form->addRow(button);
}

/// Pages tell of the current sender, but for one; without any sender none is of use.
void PageForm::Renew()
{
    if (!isVisible())
        return;
    setEnabled(m_document.GetSender() != nullptr);
    for (int i = 0; isEnabled() && i < m_fields.size(); ++i)
        m_fields[i]();
}

void PageForm::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Renew();
}
