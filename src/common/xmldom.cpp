#include "common/xmldom.h"

#include "common/xmlreader.h"

#include <QBuffer>
#include <QFile>

bool LoadXmlDom(const QString& path, QDomDocument& document, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return ParseXmlDom(file.read(kMaxXmlBytes + 1), document, error);
}

bool ParseXmlDom(const QByteArray& content, QDomDocument& document, QString* error)
{
    QByteArray bytes = content;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    XmlHandler passesOver;
    if (!ParseXml(buffer, passesOver, error))
        return false;
    buffer.close();

    QDomDocument tree;
    if (!tree.setContent(bytes, false, error))
        return false;
    document = tree;
    return true;
}
