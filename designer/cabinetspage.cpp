#include "cabinetspage.h"

#include "documentcontroller.h"

#include <QApplication>
#include <QFormLayout>
#include <QLineEdit>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kWait = 50;              ///< milliseconds
constexpr double kFarthest = 10000000; ///< of what is typed

QString Text(double value)
{
    return QString::number(value, 'g', 6);
}

QString Text(const QSize& size)
{
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

/// Reads what all have.
template <class Value> auto Common(const Value& value)
{
    return [value](const QList<CTile*>& tiles) {
        const auto first = value(*tiles.first());
        const auto isSame = [&](const CTile* tile) { return value(*tile) == first; };
        return std::all_of(tiles.begin(), tiles.end(), isSame) ? Text(first) : QString();
    };
}

} // namespace

CabinetsPage::CabinetsPage(DocumentController& document, QWidget* parent)
    : QWidget(parent), m_document(document)
{
    new QFormLayout(this);
    const auto bound = [&document](const QList<CTile*>&) { return document.GetSelectionBound(); };
    const auto move = [&document](const QPoint& by) {
        document.MoveSelection(document.Limited(document.GetSelectionBound(), by));
    };
    AddRow(tr("Selected:"), tr("Cabinets"), [](const QList<CTile*>& tiles) { return Text(tiles.size()); });
    const QString place = tr("Of all that is selected, in pixels of the canvas: all move together");
    AddRow(
        tr("&Left:"), place, [=](const QList<CTile*>& tiles) { return Text(bound(tiles).left()); },
        [=](double to) { move(QPoint(qRound(to) - bound({}).left(), 0)); });
    AddRow(
        tr("&Top:"), place, [=](const QList<CTile*>& tiles) { return Text(bound(tiles).top()); },
        [=](double to) { move(QPoint(0, qRound(to) - bound({}).top())); });
    const QString size =
        tr("Of each cabinet, 1 to %1 pixels; rows and columns stay together").arg(kMaxCabinetSize);
    AddRow(tr("&Width:"), size, Common([](const CTile& tile) { return tile.GetWidth(); }),
           [&document](double to) { document.ResizeSelection(qMax(1, qRound(to)), 0); });
    AddRow(tr("&Height:"), size, Common([](const CTile& tile) { return tile.GetHeight(); }),
           [&document](double to) { document.ResizeSelection(0, qMax(1, qRound(to))); });
    AddRow(
        tr("&Angle:"),
        tr("Degrees, clockwise. What is turned alike turns as one about its middle, else each cabinet about "
           "its own."),
        Common([](const CTile& tile) { return tile.GetRotateRecord().angle; }),
        [&document](double to) { document.TurnSelectionTo(std::remainder(to, 360)); });
    const auto number = Common([](const CTile& tile) { return qMax(tile.GetConnectionIndex(), -1) + 1; });
    AddRow(tr("Number:"), tr("Place in the chain of the port"), [number](const QList<CTile*>& tiles) {
        const QString text = number(tiles);
        return text == QLatin1String("0") ? tr("none") : text;
    });
    AddRow(tr("Port:"), tr("Edit, Move to port puts them on another"),
           Common([](const CTile& tile) { return tile.GetPortIndex() + 1; }));
    AddRow(tr("Receiving cards:"), tr("Across and down, in each cabinet"), Common([](const CTile& tile) {
               return tile.IsMultiRcvTile() ? tile.GetMultiRcvsSize() : QSize(1, 1);
           }));

    m_wait.setSingleShot(true);
    m_wait.setInterval(kWait);
    connect(&m_wait, &QTimer::timeout, this, &CabinetsPage::Renew);
    const auto soon = QOverload<>::of(&QTimer::start);
    connect(&document, &DocumentController::Changed, &m_wait, soon);
    connect(&document, &DocumentController::SelectionChanged, &m_wait, soon);
    connect(&document, &DocumentController::SenderChanged, &m_wait, soon);
    connect(&document, &DocumentController::RotationChanged, &m_wait, soon);
}

void CabinetsPage::AddRow(const QString& label, const QString& tip, const Read& read, const Apply& apply)
{
    auto* field = new QLineEdit(this);
    field->setToolTip(tip);
    field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // the wall wants the room
    field->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 9);
    static_cast<QFormLayout*>(layout())->addRow(label, field);
    connect(field, &QLineEdit::editingFinished, this, [this, field, apply] { Finish(*field, apply); });
    m_rows.append({field, read});
}

void CabinetsPage::AddRow(const QString& label, const QString& tip, const Read& read)
{
    AddRow(label, tip, read, {});
    QLineEdit* field = m_rows.last().field;
    QPalette plain;
    plain.setColor(QPalette::Base, Qt::transparent);
    field->setPalette(plain);
    field->setReadOnly(true);
    field->setFrame(false);
    field->setFocusPolicy(Qt::ClickFocus);
}

/// By Enter, or by leaving the field. What is no number is taken back.
void CabinetsPage::Finish(QLineEdit& field, const Apply& apply)
{
    if (!field.isModified())
        return;
    field.setModified(false);
    bool isNumber = false;
    const double value = field.text().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    if (isNumber && std::abs(value) < kFarthest)
        apply(value);
    Renew();
    field.selectAll();
}

void CabinetsPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_wait.start();
}

/// What is being typed stays.
void CabinetsPage::Renew()
{
    if (!isVisible())
        return;
    if (QApplication::activeModalWidget()) { // perhaps a document is being replaced
        m_wait.start();
        return;
    }
    const QList<CTile*> tiles = m_document.GetSelection();
    for (const Row& row : qAsConst(m_rows)) {
        row.field->setEnabled(!tiles.isEmpty());
        row.field->setPlaceholderText(tiles.isEmpty() ? QString() : tr("mixed"));
        if (!row.field->hasFocus() || !row.field->isModified())
            row.field->setText(tiles.isEmpty() ? QString() : row.read(tiles));
    }
}
