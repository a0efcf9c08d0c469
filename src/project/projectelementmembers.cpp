// The members that write one element into a DOM tree or read one from it: the same readers and writers that
// the project file goes through, run over a tree.
#include "common/xmlwriter.h"
#include "layout/changeteller.h"
#include "layout/sender.h"
#include "layout/tilegroup.h"
#include "project/layoutwriter.h"
#include "project/parameterwork.h"
#include "project/projectdata.h"
#include "project/projectreader.h"

namespace {

template <class Write> void WriteInto(const QDomDocument& document, const QDomElement* parent, Write write)
{
    if (!parent)
        return;
    DomXmlWriter writer(document, *parent);
    write(writer);
}

bool ReadFrom(const QDomElement* element, XmlHandler& reader)
{
    if (!element || element->isNull())
        return false;
    WalkDom(*element, reader);
    return true;
}

template <class Record>
void ReadRecord(const QDomElement* element, Record& record, void (*describe)(AttributeReader&, Record&))
{
    LeafReader reader([&record, describe](XmlAttributes& attributes) {
        AttributeReader fields(attributes);
        describe(fields, record);
    });
    ReadFrom(element, reader);
}

/// The list of an element, `held` when there are more records than there may be.
template <class Record>
QList<Record> ReadList(const QDomElement* element, const ListFormat<Record>& format,
                       const QList<Record>& held)
{
    ReadReport report;
    QList<Record> list;
    ListReader<Record> reader(format, report, list);
    ReadFrom(element, reader);
    return report.IsRefused() ? held : list;
}

/// The element itself when it has the name, else its first child of that name.
QDomElement Named(const QDomElement* element, const QString& name)
{
    if (!element || element->tagName() == name)
        return element ? *element : QDomElement();
    return element->firstChildElement(name);
}

std::string Utf8(const QString& text)
{
    return text.toStdString();
}

} // namespace

void CProjectData::WriteVersionSupport(QDomDocument document, QDomElement* parent)
{
    WriteInto(document, parent, [this](XmlWriter& writer) {
        WriteVersion(writer, {GetMinVersionSupport(), QString::fromLatin1(kFileVersion).toDouble()});
    });
}

bool CProjectData::ReadVersionSupport(QDomDocument, QDomElement* element, QString& error)
{
    VersionRecord version;
    ReadRecord<VersionRecord>(element, version, DescribeVersion);
    if (IsVersionReadable(version.minimum))
        return true;
    error = version.minimum;
    return false;
}

void CProjectData::WriteDemoModeInfo(QDomDocument document, QDomElement* parent)
{
    WriteInto(document, parent, [this](XmlWriter& writer) { WriteDemoMode(writer, m_state.demo); });
}

void CProjectData::ReadDemoModeInfo(QDomDocument, QDomElement* element)
{
    ReadRecord<SDemoMode>(element, m_state.demo, DescribeDemoMode);
}

void CProjectData::WriteSenderGroup(QDomDocument document, QDomElement* parent)
{
    WriteInto(document, parent,
              [this](XmlWriter& writer) { WriteList(writer, kSenderGroupList, m_state.groups); });
}

void CProjectData::ReadSenderGroup(QDomDocument, QDomElement* element)
{
    m_state.groups = ReadList(element, kSenderGroupList, m_state.groups);
}

void CProjectData::WriteTileGamma(QDomDocument document, QDomElement* parent)
{
    WriteInto(document, parent, [this](XmlWriter& writer) { WriteList(writer, kGammaList, m_state.gamma); });
}

void CProjectData::ReadTileGamma(QDomDocument, QDomElement* element)
{
    m_state.gamma = ReadList(element, kGammaList, m_state.gamma);
}

void CProjectData::WritePrintData(QDomDocument document, QDomElement* parent)
{
    WriteInto(document, parent, [this](XmlWriter& writer) { WritePrintForm(writer, m_state.print); });
}

void CProjectData::ReadPrintData(QDomDocument, QDomElement* element)
{
    ReadRecord<SPrintFormData>(element, m_state.print, DescribePrintForm);
}

void CProjectData::WriteMonitorSet(QDomDocument document, QDomElement* parent)
{
    WriteInto(document, parent,
              [this](XmlWriter& writer) { WriteMonitor(writer, MakeMonitorRecord(*this)); });
}

void CProjectData::ReadMonitorSet(QDomDocument, QDomElement* element)
{
    MonitorRecord record;
    ReadRecord<MonitorRecord>(element, record, DescribeMonitor);
    TakeMonitorRecord(*this, record);
}

void CProjectData::WriteParameterFileInfo(QDomDocument document, QDomElement* parent)
{
    WriteInto(document, parent,
              [this](XmlWriter& writer) { WriteList(writer, kParameterFileList, m_state.parameterFiles); });
}

void CProjectData::ReadParameterFileInfo(QDomDocument, QDomElement* element)
{
    const QList<SParameterFileInfo> files = ReadList(element, kParameterFileList, m_state.parameterFiles);
    m_state.parameterFiles = parameterwork::WithoutNameless(parameterwork::SafelyNamed(files));
}

void CProjectData::WriteSender(QDomDocument document, QDomElement* parent, CCustomProgressbar* progress)
{
    WriteInto(document, parent,
              [this, progress](XmlWriter& writer) { WriteSenders(writer, m_senders, Reports(progress)); });
}

bool CProjectData::ReadSender(QDomDocument, QDomElement* element, QString&, CCustomProgressbar* progress)
{
    DocumentOperation operation(History());
    ReadReport report;
    SenderLayoutReader::Senders senders;
    SenderLayoutReader reader(report, senders, Reports(progress));
    if (ReadFrom(element, reader) && !report.IsRefused()) {
        const int current = m_state.currentSender;
        DeleteAllSender();
        m_state.currentSender = current;
        TakeSenders(Released(senders));
        operation.Changed(&SDocumentChange::senders);
        MarkModified();
    }
    m_lastFileError = report.IsRefused() ? report.GetRefusal() : report.Text();
    return true;
}

void CProjectData::WriteSingleSender(QDomDocument document, QDomElement* parent, CSender* sender)
{
    WriteInto(document, sender ? parent : nullptr, [sender](XmlWriter& writer) {
        WriteSenderElement(writer, layoutnames::kSenderLayout, *sender, false);
    });
}

void CProjectData::ReadSingleSender(QDomDocument, QDomElement* element, CSender* sender, const QUuid& newId,
                                    bool keepLockedPorts, bool attributes)
{
    ReadReport report;
    CSender probe;
    SenderReader check(report);
    check.SetTarget(&probe, SenderParts::LayoutOnly, false);
    if (!sender || !ReadFrom(element, check) || report.IsRefused())
        return;
    if (!newId.isNull())
        sender->SetId(newId);
    SenderReader reader(report);
    reader.SetTarget(sender, attributes ? SenderParts::LayoutAndView : SenderParts::LayoutOnly,
                     keepLockedPorts);
    ReadFrom(element, reader);
}

void CProjectData::WritePort(QDomDocument document, const QString& name, CPort* port, QDomElement* parent)
{
    WriteInto(document, port ? parent : nullptr,
              [&name, port](XmlWriter& writer) { WritePortElement(writer, Utf8(name), *port); });
}

bool CProjectData::ReadPort(QDomDocument, const QString& name, CPort* port, QDomElement* element,
                            const QUuid& senderId, int portIndex, bool keepLocked)
{
    const QDomElement found = Named(element, name);
    ReadReport report;
    CPort probe;
    PortReader check(report);
    check.SetTarget(&probe, senderId, portIndex, false);
    if (!port || !ReadFrom(&found, check) || report.IsRefused())
        return false;
    PortReader reader(report);
    reader.SetTarget(port, senderId, portIndex, keepLocked);
    return ReadFrom(&found, reader);
}

void CProjectData::WriteTileSet(QDomDocument document, const QString& name, CTileSet* tiles,
                                QDomElement* parent)
{
    WriteInto(document, tiles ? parent : nullptr,
              [&name, tiles](XmlWriter& writer) { WriteTiles(writer, Utf8(name), *tiles); });
}

void CProjectData::ReadTileSet(QDomDocument, const QString& name, CTileSet* tiles, QDomElement* element,
                               const QUuid& senderId, int portIndex)
{
    const QDomElement found = Named(element, name);
    if (!tiles)
        return;
    ReadReport report;
    TileSetReader reader(report);
    reader.SetTarget(tiles, senderId, portIndex);
    ReadFrom(&found, reader);
}

void CProjectData::WriteTileGroupSet(QDomDocument document, const QString& name, CTileGroupSet* groups,
                                     QDomElement* parent)
{
    WriteInto(document, groups ? parent : nullptr,
              [&name, groups](XmlWriter& writer) { WriteGroups(writer, Utf8(name), *groups); });
}

void CProjectData::ReadTileGroupSet(QDomDocument document, const QString& name, CTileSet* tiles,
                                    CTileGroupSet* groups, QDomElement* element)
{
    QDomElement found = Named(element, name);
    ReadSubTileGroup(document, QString::fromLatin1(layoutnames::kGroup), tiles, groups, &found, QUuid());
}

void CProjectData::WriteSubTileGroup(QDomDocument document, const QString& prefix, CTileGroupSet* groups,
                                     QDomElement* element)
{
    WriteInto(document, groups ? element : nullptr,
              [&prefix, groups](XmlWriter& writer) { WriteGroupLevel(writer, Utf8(prefix), *groups, 1); });
}

void CProjectData::ReadSubTileGroup(QDomDocument, const QString& prefix, CTileSet*, CTileGroupSet* groups,
                                    QDomElement* element, const QUuid& parentId)
{
    if (!groups)
        return;
    ReadReport report;
    GroupTreeReader reader(report);
    reader.SetTarget(groups);
    reader.SetNames(Utf8(prefix));
    if (!ReadFrom(element, reader) || parentId.isNull())
        return;
    for (int i = 0; i < groups->GetDirectCount(); ++i)
        groups->GetDirectGroupByDirIndex(i)->SetParentGroupID(parentId);
}

bool CProjectData::GetSubNode(QDomElement* element, const QString& name, QDomNode& node)
{
    if (!element)
        return false;
    node = element->namedItem(name);
    return !node.isNull();
}

void CProjectData::InsertChildNode(QDomDocument document, QDomElement* parent, const QString& name,
                                   const QString& text)
{
    WriteInto(document, parent, [&name, &text](XmlWriter& writer) {
        writer.BeginElement(Utf8(name));
        std::string content;
        fieldtext::Append(content, text);
        writer.Text(content);
        writer.EndElement();
    });
}

void CProjectData::InsertNodeAttribute(QDomElement* element, const QString& name, const QString& value)
{
    if (!element)
        return;
    std::string content;
    fieldtext::Append(content, value);
    element->setAttribute(name, QString::fromStdString(content));
}
