#include "orvantools/cabinetchange.h"

#include "orvantools/textrows.h"

#include <OrvanData/orvandata.h>

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

/// Files keep six significant digits.
bool IsNear(double a, double b)
{
    return std::abs(a - b) <= 0.0001 + 0.000005 * std::max(std::abs(a), std::abs(b));
}

/// Records of cabinets move along with them, though not every program moves all of them.
bool IsNear(double before, double after, int moved)
{
    return IsNear(before, after) || IsNear(before + moved, after);
}

bool IsCenterSame(const CTile& before, const CTile& after)
{
    const SRotateParam& a = before.GetRotateRecord();
    const SRotateParam& b = after.GetRotateRecord();
    const bool used = a.rotated || b.rotated || a.showCenter || b.showCenter;
    return !used
           || (IsNear(a.centerX, b.centerX, after.GetX() - before.GetX())
               && IsNear(a.centerY, b.centerY, after.GetY() - before.GetY()));
}

bool IsLeftTopSame(const CTile& before, const CTile& after)
{
    const SRotateParam& a = before.GetRotateRecord();
    const SRotateParam& b = after.GetRotateRecord();
    return IsNear(a.leftTopX, b.leftTopX, after.GetX() - before.GetX())
           && IsNear(a.leftTopY, b.leftTopY, after.GetY() - before.GetY());
}

/// Where a cabinet is to be turned is not told of one that is not turned.
bool IsBlockSame(const CTile& before, const CTile& after)
{
    const SRotateParam& a = before.GetRotateRecord();
    const SRotateParam& b = after.GetRotateRecord();
    return (!a.rotated && !b.rotated)
           || (IsNear(a.width, b.width) && IsNear(a.height, b.height) && IsLeftTopSame(before, after));
}

bool IsTurnedSame(const CTile& before, const CTile& after)
{
    const SRotateParam& a = before.GetRotateRecord();
    const SRotateParam& b = after.GetRotateRecord();
    return IsNear(a.angle, b.angle) && a.rotated == b.rotated && a.showCenter == b.showCenter
           && IsCenterSame(before, after) && IsBlockSame(before, after);
}

bool IsWiredSame(const CTile& a, const CTile& b)
{
    bool same = a.IsMultiRcvTile() == b.IsMultiRcvTile() && a.IsMultiFixedLine() == b.IsMultiFixedLine()
                && a.IsMultiRcvsOrdered() == b.IsMultiRcvsOrdered()
                && a.GetMultiRcvsSize() == b.GetMultiRcvsSize();
    for (int i = 0; i < kMaxReceiversInTile; ++i)
        same = same && a.GetMultiRcvsLineCode(i) == b.GetMultiRcvsLineCode(i);
    return same;
}

QString PairText(double x, double y)
{
    return QString::number(x) + QStringLiteral(", ") + QString::number(y);
}

QString PlaceText(const CTile& tile)
{
    return PairText(tile.GetX(), tile.GetY());
}

QString NumberOf(const CTile& tile)
{
    return tile.HasSetConnectIndex() ? QStringLiteral("number %1").arg(qint64(tile.GetConnectionIndex()) + 1)
                                     : QStringLiteral("no number");
}

/// "2x2 (fixed, line 0 1 3 2)"; the line without the zeros at its end.
QString WiringText(const CTile& tile)
{
    QStringList words;
    if (!tile.IsMultiRcvTile())
        words.append(QStringLiteral("single"));
    if (tile.IsMultiFixedLine())
        words.append(QStringLiteral("fixed"));
    if (!tile.IsMultiRcvsOrdered())
        words.append(QStringLiteral("no order"));
    int last = kMaxReceiversInTile - 1;
    while (last > 0 && tile.GetMultiRcvsLineCode(last) == 0)
        --last;
    QString line = QStringLiteral("line");
    for (int i = 0; i <= last; ++i)
        line += QLatin1Char(' ') + QString::number(tile.GetMultiRcvsLineCode(i));
    words.append(line);
    const QSize size = tile.GetMultiRcvsSize();
    return SizeText(size.width(), size.height())
           + QStringLiteral(" (%1)").arg(words.join(QStringLiteral(", ")));
}

} // namespace

bool CabinetChange::IsMoved() const
{
    return m_before.GetX() != m_after.GetX() || m_before.GetY() != m_after.GetY();
}

bool CabinetChange::IsRenumbered() const
{
    return m_before.HasSetConnectIndex() != m_after.HasSetConnectIndex()
           || (m_after.HasSetConnectIndex() && m_before.GetConnectionIndex() != m_after.GetConnectionIndex());
}

bool CabinetChange::IsOther() const
{
    return m_before.GetSize() != m_after.GetSize() || m_before.GetType() != m_after.GetType()
           || !IsWiredSame(m_before, m_after) || !IsTurnedSame(m_before, m_after);
}

QString CabinetChange::MoveText() const
{
    return QStringLiteral("from %1 to %2").arg(PlaceText(m_before), PlaceText(m_after));
}

QString CabinetChange::NumberText() const
{
    return NumberOf(m_after) + QStringLiteral(", was ")
           + NumberOf(m_before).remove(QStringLiteral("number "));
}

QString CabinetChange::OtherText(const TypeName& before, const TypeName& after) const
{
    const SRotateParam& a = m_before.GetRotateRecord();
    const SRotateParam& b = m_after.GetRotateRecord();
    QStringList changes;
    const auto tell = [&](bool same, const char* name, auto textOf) {
        if (!same)
            changes.append(QLatin1String(name) + textOf(m_after) + QStringLiteral(", was ")
                           + textOf(m_before));
    };
    tell(m_before.GetSize() == m_after.GetSize(), "size ",
         [](const CTile& tile) { return SizeText(tile.GetWidth(), tile.GetHeight()); });
    if (m_before.GetType() != m_after.GetType())
        changes.append(
            QStringLiteral("type %1, was %2").arg(after(m_after.GetType()), before(m_before.GetType())));
    tell(IsWiredSame(m_before, m_after), "receiving cards ", WiringText);
    if (!IsNear(a.angle, b.angle) || a.rotated != b.rotated)
        changes.append(QStringLiteral("turned from %1° to %2°").arg(a.angle).arg(b.angle));
    tell(IsCenterSame(m_before, m_after), "turned about ", [](const CTile& tile) {
        return PairText(tile.GetRotateRecord().centerX, tile.GetRotateRecord().centerY);
    });
    tell(IsBlockSame(m_before, m_after), "turned as part of ", [](const CTile& tile) {
        const SRotateParam& record = tile.GetRotateRecord();
        return SizeText(record.width, record.height) + QStringLiteral(" at ")
               + PairText(record.leftTopX, record.leftTopY);
    });
    tell(a.showCenter == b.showCenter, "middle of turning ", [](const CTile& tile) {
        return tile.GetRotateRecord().showCenter ? QStringLiteral("shown") : QStringLiteral("hidden");
    });
    return changes.join(QStringLiteral("; "));
}

QString CabinetChange::Describe(const CTile& tile)
{
    return PlaceText(tile) + QStringLiteral(", size ") + SizeText(tile.GetWidth(), tile.GetHeight())
           + QStringLiteral(", ") + NumberOf(tile);
}

} // namespace OrvanTools
