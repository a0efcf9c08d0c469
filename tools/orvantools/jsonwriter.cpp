#include "orvantools/jsonwriter.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace OrvanTools {

namespace {

QByteArray Indent(int depth)
{
    return QByteArray(4 * depth, ' ');
}

} // namespace

void JsonWriter::Object(const QJsonObject& members, const QString& key, const std::function<void()>& write)
{
    QJsonObject all = members;
    all.insert(key, QJsonValue());
    Begin(QString(), '{');
    for (auto member = all.constBegin(); member != all.constEnd(); ++member) {
        if (member.key() != key) {
            Next(member.key(), Text(member.value()));
            continue;
        }
        Begin(key, '[');
        write();
        End(']');
    }
    End('}');
    if (m_depth == 0)
        m_sink("\n");
}

QByteArray JsonWriter::Text(const QJsonValue& value) const
{
    // A list around it lets any value be a document: "[\n    value\n]\n".
    QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Indented);
    text = text.mid(6, text.size() - 9);
    return text.replace('\n', '\n' + Indent(m_depth - 1));
}

void JsonWriter::Begin(const QString& key, char bracket)
{
    Next(key, QByteArray(1, bracket));
    ++m_depth;
    m_empty = true;
}

void JsonWriter::End(char bracket)
{
    --m_depth;
    m_sink('\n' + Indent(m_depth) + bracket);
    m_empty = false;
}

void JsonWriter::Next(const QString& key, const QByteArray& text)
{
    const QByteArray name = key.isEmpty() ? QByteArray() : '"' + key.toUtf8() + "\": ";
    m_sink((m_empty ? (m_depth == 0 ? "" : "\n") : ",\n") + Indent(m_depth) + name + text);
    m_empty = false;
}

} // namespace OrvanTools
