#pragma once

#include <QString>

#include <functional>

class CTile;
struct SMD5;

namespace OrvanTools {

/// What differs between a cabinet before and after. Looks at both while it is used.
class CabinetChange
{
public:
    using TypeName = std::function<QString(const SMD5&)>;

    CabinetChange(const CTile& before, const CTile& after) : m_before(before), m_after(after) {}

    bool IsMoved() const;
    bool IsRenumbered() const;
    bool IsOther() const; ///< size, type, wiring inside, turning

    QString MoveText() const;   ///< "from 128, 0 to 256, 0"
    QString NumberText() const; ///< "number 5, was 4"
    QString OtherText(const TypeName& before, const TypeName& after) const;

    /// "128, 0, size 128x128, number 5" of a cabinet that came or went.
    static QString Describe(const CTile& tile);

private:
    const CTile& m_before; ///< [ref]
    const CTile& m_after;  ///< [ref]
};

} // namespace OrvanTools
