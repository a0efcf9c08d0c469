#include "cabinetspage.h"

#include "documentcontroller.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFarthest = 10000000; ///< of what is typed

QString Text(double value)
{
    return QString::number(value, 'g', 6);
}

QString Text(const QSize& size)
{
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

/// As turning has it: angles add up.
bool IsSame(double a, double b)
{
    return qFuzzyIsNull(a - b);
}

bool IsSame(const QSize& a, const QSize& b)
{
    return a == b;
}

/// What is no number is passed over.
std::function<void(const QString&)> Typed(const std::function<void(double value)>& apply)
{
    return [apply](QString text) {
        bool isNumber = false;
        const double value = text.replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
        if (isNumber && std::abs(value) < kFarthest)
            apply(value);
    };
}

} // namespace

CabinetsPage::CabinetsPage(DocumentController& document, QWidget* parent)
    : PageForm(document, parent), m_document(document)
{
    const auto bound = [&document] { return document.GetSelectionBound(); };
    const auto move = [&document](const QPoint& by) { document.MoveSelection(by); };
    const auto common = [this](auto value) { // empty: they differ
        return [this, value] {
            const auto first = value(*m_tiles.first());
            const auto isSame = [&](const CTile* tile) { return IsSame(value(*tile), first); };
            return std::all_of(m_tiles.begin(), m_tiles.end(), isSame) ? Text(first) : QString();
        };
    };
    const QString place = tr("Of all that is selected, in pixels of the canvas: all move together");
    const QString size =
        tr("Of each cabinet, 1 to %1 pixels; rows and columns stay together").arg(kMaxCabinetSize);
    const Field<QString> fields[] = {
        {tr("Left:"), place, [=] { return Text(bound().left()); },
         Typed([=](double to) { move(QPoint(qRound(to) - bound().left(), 0)); })},
        {tr("Top:"), place, [=] { return Text(bound().top()); },
         Typed([=](double to) { move(QPoint(0, qRound(to) - bound().top())); })},
        {tr("Width:"), size, common([](const CTile& tile) { return tile.GetWidth(); }),
         Typed([&document](double to) { document.ResizeSelection(qMax(1, qRound(to)), 0); })},
        {tr("Height:"), size, common([](const CTile& tile) { return tile.GetHeight(); }),
         Typed([&document](double to) { document.ResizeSelection(0, qMax(1, qRound(to))); })},
        {tr("Angle:"),
         tr("Degrees, clockwise. What is turned alike turns as one about its middle, else each cabinet about "
            "its own."),
         common([](const CTile& tile) { return tile.GetRotateRecord().angle; }),
         Typed([&document](double to) { document.TurnSelectionTo(std::remainder(to, 360)); })},
    };
    const auto number = common([](const CTile& tile) { return qMax(tile.GetConnectionIndex(), -1) + 1; });
    const Field<QString> infos[] = {
        {tr("Number:"),
         tr("Place in the chain of the port"),
         [number] {
             const QString text = number();
             return text == QLatin1String("0") ? tr("none") : text;
         },
         {}},
        {tr("Port:"),
         tr("Edit, Move to port puts them on another"),
         common([](const CTile& tile) { return tile.GetPortIndex() + 1; }),
         {}},
        {tr("Receiving cards:"),
         tr("Across and down, in each cabinet"),
         common(
             [](const CTile& tile) { return tile.IsMultiRcvTile() ? tile.GetMultiRcvsSize() : QSize(1, 1); }),
         {}},
    };
    const QString mixed = tr("mixed");
    AddInfo(
        tr("Selected:"), [this] { return Text(m_tiles.size()); }, tr("Cabinets"));
    for (const Field<QString>& field : fields)
        AddText(field, mixed);
    for (const auto& [label, tip, read, write] : infos)
        AddInfo(label, read, tip, mixed);
}

bool CabinetsPage::TakeSubject()
{
    m_tiles = m_document.GetSelection();
    return !m_tiles.isEmpty();
}
