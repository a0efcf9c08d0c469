#include "params/paramcontents.h"

#include "common/failure.h"
#include "common/texts.h"
#include "common/xmldom.h"
#include "params/paramfile.h"

#include <QDomDocument>
#include <QHash>
#include <QJsonArray>

namespace params {

namespace {

QJsonValue Contents(const QDomElement& element);

/// Adds a value under a name, to the values already there when the name repeats.
void AddChildren(const QDomElement& element, QJsonObject& object)
{
    QHash<QString, QJsonArray> values;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        values[child.tagName()].append(Contents(child));
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        object.insert(value.key(), value->size() == 1 ? value->first() : QJsonValue(value.value()));
}

QJsonValue Contents(const QDomElement& element)
{
    if (element.firstChildElement().isNull())
        return element.text();
    QJsonObject object;
    AddChildren(element, object);
    return object;
}

} // namespace

QJsonObject ParamFileContents(const QString& path, QString* error)
{
    QDomDocument document;
    if (!LoadXmlDom(path, document, error))
        return {};
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String(kProcessorFamily.root)
        && root.tagName() != QLatin1String(kSenderFamily.root)) {
        Fail(error, Texts::tr("不是参数文件。"));
        return {};
    }
    QJsonObject object;
    const QDomNamedNodeMap attributes = root.attributes();
    for (int i = 0; i < attributes.count(); ++i)
        object.insert(attributes.item(i).nodeName(), attributes.item(i).nodeValue());
    AddChildren(root, object);
    return object;
}

} // namespace params
