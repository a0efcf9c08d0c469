#include "settings/customizeconfig.h"

#include "common/atomicfile.h"
#include "common/inputfile.h"

#include <QFile>
#include <QJsonDocument>

bool CustomizeConfig::Load(const QString& path)
{
    m_file.SetPath(path);
    m_values = QJsonObject();
    if (!QFile::exists(path))
        return false;
    QByteArray content;
    QJsonDocument document;
    if (ReadInput(path, kMaxJsonBytes, &content))
        document = QJsonDocument::fromJson(content);
    if (!document.isObject()) {
        m_file.Hold();
        m_file.MakeWritable();
        return false;
    }
    m_values = document.object();
    return true;
}

bool CustomizeConfig::Save()
{
    const QJsonDocument document(m_values);
    QByteArray content = document.toJson();
    if (content.size() > kMaxJsonBytes)
        content = document.toJson(QJsonDocument::Compact);
    // It is read back, because values may be nested deeper than a reader takes.
    return content.size() <= kMaxJsonBytes && QJsonDocument::fromJson(content).isObject()
           && m_file.MakeWritable() && ReplaceFile(m_file.Path(), content);
}

QJsonValue CustomizeConfig::Value(const QString& key, const QJsonValue& standard) const
{
    const auto found = m_values.find(key);
    return found == m_values.end() ? standard : *found;
}
