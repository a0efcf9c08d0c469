#pragma once

#include <QByteArray>
#include <QJsonObject>

#include <functional>
#include <utility>

namespace OrvanTools {

/// Writes one JSON object piece by piece, for what is too large to be held whole, in the form of an indented
/// QJsonDocument.
class JsonWriter
{
public:
    using Sink = std::function<void(const QByteArray&)>; ///< takes the next bytes, UTF-8

    explicit JsonWriter(Sink sink) : m_sink(std::move(sink)) {}

    void Value(const QJsonValue& value) { Next(QString(), Text(value)); } ///< in a list

    /// An object with these members and one more, in order: a list, whose values `write` writes.
    void Object(const QJsonObject& members, const QString& key, const std::function<void()>& write);

private:
    QByteArray Text(const QJsonValue& value) const;
    void Begin(const QString& key, char bracket);
    void End(char bracket);
    void Next(const QString& key, const QByteArray& text);

    Sink m_sink;
    int m_depth = 0;     ///< of what is begun and not ended
    bool m_empty = true; ///< what was begun last
};

} // namespace OrvanTools
