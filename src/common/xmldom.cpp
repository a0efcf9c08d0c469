#include "common/xmldom.h"

#include "common/failure.h"
#include "common/inputfile.h"
#include "common/texts.h"
#include "common/xmlreader.h"

#include <QBuffer>

namespace {

/// Counts the nodes that a tree of the document would have.
class NodeCounter : public XmlHandler
{
public:
    void Begin(XmlAttributes& attributes) override { count += 1 + attributes.GetCount(); }
    XmlHandler* Child(std::string_view) override { return this; }
    void Aside() override { ++count; }

    qint64 count = 0;
};

} // namespace

bool LoadXmlDom(const QString& path, QDomDocument& document, QString* error)
{
    QByteArray content;
    return ReadInput(path, kMaxXmlBytes, &content, error) && ParseXmlDom(content, document, error);
}

bool ParseXmlDom(const QByteArray& content, QDomDocument& document, QString* error)
{
    QBuffer buffer;
    buffer.setData(content);
    buffer.open(QIODevice::ReadOnly);
    NodeCounter nodes;
    if (!ParseXml(buffer, nodes, error))
        return false;
    if (nodes.count > kMaxTreeNodes)
        return Fail(error, Texts::tr("文件中的元素过多。"));
    QDomDocument tree;
    if (!tree.setContent(content, false, error))
        return false;
    document = tree;
    return true;
}
