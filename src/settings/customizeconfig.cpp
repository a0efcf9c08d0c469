#include "settings/customizeconfig.h"

#include "common/atomicfile.h"
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
    QFile file(path);
    if (!file.exists())
        return false;
    QJsonDocument document;
    if (file.open(QIODevice::ReadOnly) && file.size() <= kMaxFileSize)
        document = QJsonDocument::fromJson(file.readAll());
    file.close();
    if (!document.isObject()) {
        SetBrokenFileAside(path);
        return false;
    }
    m_values = document.object();
    return true;
}

bool CustomizeConfig::Save() const
{
    return !m_path.isEmpty() && ReplaceFile(m_path, QJsonDocument(m_values).toJson());
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
