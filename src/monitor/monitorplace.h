#pragma once

#include "common/export.h"

#include <QHash>
#include <QMap>
#include <QMetaType>

#include <tuple>

class QDebug;

/// What a detected value or warning belongs to: a sender, one of its ports, or a receiving card on that port.
struct SMonitorPlace
{
    unsigned int sender = 0; ///< sender index
    int port = -1;           ///< -1: the sender itself
    int receiver = -1;       ///< -1: the port itself
};

inline bool operator==(const SMonitorPlace& a, const SMonitorPlace& b)
{
    return a.sender == b.sender && a.port == b.port && a.receiver == b.receiver;
}

inline bool operator<(const SMonitorPlace& a, const SMonitorPlace& b)
{
    return std::tie(a.sender, a.port, a.receiver) < std::tie(b.sender, b.port, b.receiver);
}

inline uint qHash(const SMonitorPlace& place, uint seed = 0)
{
    QtPrivate::QHashCombine combine;
    return combine(combine(combine(seed, place.sender), place.port), place.receiver);
}

/// Values by place. Setting the default value removes a value, so that data in which all was cleared equals
/// new data. A plain value; copies share their content until one is written to.
template <class Value> class MonitorPlaceMap
{
public:
    bool operator==(const MonitorPlaceMap& other) const { return m_values == other.m_values; }

    /// A number below -1 names nothing and is ignored.
    void Set(const SMonitorPlace& place, const Value& value)
    {
        if (place.port < -1 || place.receiver < -1)
            return;
        if (value == Value())
            m_values.remove(place);
        else
            m_values.insert(place, value);
    }
    Value Get(const SMonitorPlace& place) const { return m_values.value(place); }
    QList<Value> Values() const { return m_values.values(); } ///< by sender, port and receiver
    bool IsEmpty() const { return m_values.isEmpty(); }

    /// Whether anything is set on the place or below it: its ports, its receiving cards.
    bool HasAnyBelow(const SMonitorPlace& place) const
    {
        const auto first = m_values.lowerBound(place);
        return first != m_values.end() && Covers(place, first.key());
    }

    /// Clears the place and everything below it.
    void ClearBelow(const SMonitorPlace& place)
    {
        auto it = m_values.lowerBound(place);
        while (it != m_values.end() && Covers(place, it.key()))
            it = m_values.erase(it);
    }
    void Clear() { m_values.clear(); }

private:
    static bool Covers(const SMonitorPlace& upper, const SMonitorPlace& lower)
    {
        return upper.sender == lower.sender && (upper.port < 0 || upper.port == lower.port)
               && (upper.receiver < 0 || upper.receiver == lower.receiver);
    }

    QMap<SMonitorPlace, Value> m_values;
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SMonitorPlace& place);

Q_DECLARE_METATYPE(SMonitorPlace)
