#include "pageform.h"

#include "documentcontroller.h"
#include "makeaction.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

namespace {

constexpr int kWait = 50; ///< milliseconds

bool IsBeingTyped(const QWidget& editor)
{
    const auto* line = qobject_cast<const QLineEdit*>(&editor);
    if (!line)
        line = editor.findChild<QLineEdit*>(); // of a spin box
    return line && line->isModified() && editor.hasFocus();
}

} // namespace

PageForm::PageForm(const DocumentController& document, QWidget* parent)
    : QScrollArea(parent), m_document(document)
{
    auto* fields = new QWidget(this);
    m_form = new QFormLayout(fields);
    setWidget(fields);
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    fields->setAutoFillBackground(false); // what is behind it has a colour of its own
    viewport()->setAutoFillBackground(false);
    m_wait.setSingleShot(true);
    m_wait.setInterval(kWait);
    connect(&m_wait, &QTimer::timeout, this, &PageForm::Renew);
    const auto soon = QOverload<>::of(&QTimer::start);
    connect(&document, &DocumentController::Changed, &m_wait, soon);
    connect(&document, &DocumentController::SelectionChanged, &m_wait, soon);
    connect(&document, &DocumentController::SenderChanged, &m_wait, soon);
    connect(&document, &DocumentController::PortStatesChanged, &m_wait, soon);
    connect(&document, &DocumentController::RotationChanged, &m_wait, soon);
}

void PageForm::Follow(QWidget* editor, const QString& label, const QString& tip,
                      const std::function<void()>& show)
{
    editor->setAccessibleName(PlainLabel(label));
    editor->setToolTip(tip);
    editor->installEventFilter(this);
    m_shows.append([editor, show] {
        const QSignalBlocker blocker(editor);
        if (!IsBeingTyped(*editor))
            show();
    });
}

/// The wheel turns a value only where the user is, else the page. Undo and redo are the wall's when nothing
/// typed is there to take back.
bool PageForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* line = qobject_cast<QLineEdit*>(watched);
        line = line ? line : watched->findChild<QLineEdit*>();
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (line
            && ((key.matches(QKeySequence::Undo) && !line->isUndoAvailable())
                || (key.matches(QKeySequence::Redo) && !line->isRedoAvailable()))) {
            event->ignore();
            return true;
        }
    }
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return QScrollArea::eventFilter(watched, event);
    event->ignore();
    return true;
}

void PageForm::AddNumber(const Field<int>& field, int least, int most, const QString& leastText)
{
    auto* editor = new QSpinBox(this);
    editor->setRange(least, most);
    editor->setSpecialValueText(leastText);
    editor->setFocusPolicy(Qt::StrongFocus);
    editor->setKeyboardTracking(false); // a number that is being typed is none yet
    auto* line = editor->findChild<QLineEdit*>();
    connect(editor, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, line, field](int value) {
        line->setModified(false);
        field.write(value);
        Renew();
    });
    connect(editor, &QSpinBox::editingFinished, line, [line] { line->setModified(false); });
    Follow(editor, field.label, field.tip, [editor, field] { editor->setValue(field.read()); });
    m_form->addRow(field.label, editor);
}

void PageForm::AddChoice(const Field<int>& field, const QList<int>& values, const QString& zeroText)
{
    auto* editor = new QComboBox(this);
    editor->setFocusPolicy(Qt::StrongFocus);
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

QLineEdit* PageForm::MakeLine(const std::function<void(const QString& text)>& take)
{
    auto* line = new QLineEdit(this);
    line->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 9);
    connect(line, &QLineEdit::editingFinished, this, [this, line, take] {
        if (!line->isModified())
            return;
        line->setModified(false);
        take(line->text());
        Renew();
        line->selectAll();
    });
    return line;
}

void PageForm::AddText(const Field<QString>& field, const QString& emptyText)
{
    QLineEdit* editor = MakeLine(field.write);
    editor->setPlaceholderText(emptyText);
    Follow(editor, field.label, field.tip, [editor, field] { editor->setText(field.read()); });
    m_form->addRow(field.label, editor);
}

void PageForm::AddLine(const Field<SPrintLine>& field)
{
    auto* on = new QCheckBox(field.label, this);
    QLineEdit* editor = MakeLine([on, field](const QString& text) { field.write({on->isChecked(), text}); });
    connect(editor, &QLineEdit::textEdited, on, [on] { on->setChecked(true); });
    connect(on, &QCheckBox::toggled, this, [editor, field](bool isOn) {
        field.write({isOn, editor->text()});
    });
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

void PageForm::AddInfo(const QString& label, const std::function<QString()>& read, const QString& tip,
                       const QString& emptyText)
{
    auto* text = new QLabel(this);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const auto show = [text, read, emptyText] {
        const QString shown = read();
        text->setText(shown.isEmpty() ? emptyText : shown);
    };
    Follow(text, label, tip, show);
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

void PageForm::FinishTyping()
{
    QWidget* editor = QApplication::focusWidget();
    if (!editor || !IsBeingTyped(*editor))
        return;
    editor->clearFocus();
    if (editor->isVisible())
        editor->setFocus();
}

bool PageForm::TakeSubject()
{
    return m_document.GetSender() != nullptr;
}

void PageForm::Renew()
{
    if (!isVisible())
        return;
    if (QApplication::activeModalWidget()) { // perhaps a document is being replaced
        m_wait.start();
        return;
    }
    widget()->setVisible(TakeSubject());
    for (int i = 0; widget()->isVisible() && i < m_shows.size(); ++i)
        m_shows[i]();
}

void PageForm::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    Renew();
}

/// No field is cut at its side.
QSize PageForm::minimumSizeHint() const
{
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
            QScrollArea::minimumSizeHint().height()};
}
