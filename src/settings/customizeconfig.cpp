#include "settings/customizeconfig.h"

#include "common/atomicfile.h"
#include "common/inputfile.h"
#include "settings/brokenfile.h"

#include <QFile>
#include <QJsonDocument>

namespace {

constexpr qint64 kMaxFileSize = 1 << 24;

} // namespace

bool CustomizeConfig::Load(const QString& path)
{
    m_path = path;
    m_values = QJsonObject();
    if (!QFile::exists(path))
        return false;
    QByteArray content;
    QJsonDocument document;
    if (ReadInput(path, kMaxFileSize, &content))
        document = QJsonDocument::fromJson(content);
    if (!document.isObject()) {
        SetBrokenFileAside(path);
        return false;
    }
    m_values = document.object();
    return true;
}

bool CustomizeConfig::Save() const
{
    const QJsonDocument document(m_values);
    QByteArray content = document.toJson();
    if (content.size() > kMaxFileSize)
        content = document.toJson(QJsonDocument::Compact);
    // Read back, as values may be nested deeper than is read.
    return !m_path.isEmpty() && content.size() <= kMaxFileSize && QJsonDocument::fromJson(content).isObject()
           && ReplaceFile(m_path, content);
}

QJsonValue CustomizeConfig::Value(const QString& key, const QJsonValue& standard) const
{
    const auto found = m_values.find(key);
    return found == m_values.end() ? standard : *found;
}

void CustomizeConfig::SetValue(const QString& key, const QJsonValue& value)
{
    m_values.insert(key, value);
}
