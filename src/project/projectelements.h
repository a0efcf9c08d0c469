#pragma once

#include "common/xmlreader.h"
#include "common/xmlwriter.h"
#include "project/numberedchildren.h"
#include "project/projectdescription.h"
#include "project/readreport.h"

#include <QList>

#include <functional>
#include <string>

// The elements of a project file beside the layout: their names, and readers and writers of them.

class CProjectData;

namespace projectnames {

constexpr char kRoot[] = "LedSetting";
constexpr char kVersion[] = "VersionSupport";
constexpr char kDemoMode[] = "DemoModeInfo";
constexpr char kSenderGroups[] = "SenderTreeGroup";
constexpr char kGamma[] = "TileTypeGamma";
constexpr char kPrintForm[] = "PrintFormData";
constexpr char kMonitor[] = "Monitor";
constexpr char kParameterFiles[] = "ParameterFile";

} // namespace projectnames

/// The newest file version that is read, and by how much a file may still go beyond it.
constexpr char kFileVersion[] = "6.0";
constexpr float kVersionTolerance = 0.100001F;

constexpr int kMaxListRecords = 65536; ///< of each list in a file

bool IsVersionReadable(const QString& minimumVersion);

/// An element without children, given to a function.
class LeafReader : public XmlHandler
{
public:
    using Take = std::function<void(XmlAttributes&)>;

    explicit LeafReader(Take take) : m_take(std::move(take)) {}
    void Begin(XmlAttributes& attributes) override { m_take(attributes); }

private:
    Take m_take;
};

/// How a list of records stands in a file: its count, the names of its children, the record of each.
template <class Record> struct ListFormat
{
    const char* element;
    const char* count;
    const char* child;
    void (*read)(AttributeReader&, Record&);
    void (*write)(AttributeWriter&, const Record&);
};

extern const ListFormat<SSenderGroupInfo> kSenderGroupList;
extern const ListFormat<SRcvParamGamma> kGammaList;
extern const ListFormat<SParameterFileInfo> kParameterFileList;

/// A list of records, filled when its element ends.
template <class Record> class ListReader : public XmlHandler
{
public:
    ListReader(const ListFormat<Record>& format, ReadReport& report, QList<Record>& list) ///< [ref]
        : m_format(format), m_list(list), m_children(format.child, report),
          m_record([this](XmlAttributes& attributes) { AddRecord(attributes); })
    {}

    void Begin(XmlAttributes& attributes) override
    {
        int count = 0;
        AttributeReader(attributes).Field(m_format.count, count);
        m_children.Start(count, kMaxListRecords);
    }
    XmlHandler* Child(std::string_view name) override
    {
        return m_children.Expect(name) ? &m_record : nullptr;
    }
    void End() override
    {
        m_list.clear();
        for (Record& record : m_children.Take())
            m_list.append(std::move(record));
    }

private:
    void AddRecord(XmlAttributes& attributes)
    {
        Record record;
        AttributeReader fields(attributes);
        m_format.read(fields, record);
        m_children.Add(std::move(record));
    }

    const ListFormat<Record>& m_format;
    QList<Record>& m_list;
    NumberedChildren<Record> m_children;
    LeafReader m_record;
};

template <class Record>
void WriteList(XmlWriter& writer, const ListFormat<Record>& format, const QList<Record>& list)
{
    writer.BeginElement(format.element);
    AttributeWriter fields(writer);
    fields.Field(format.count, list.size());
    for (int i = 0; i < list.size(); ++i) {
        writer.BeginElement(format.child + std::to_string(i + 1));
        format.write(fields, list[i]);
        writer.EndElement();
    }
    writer.EndElement();
}

/// An element that holds one record, written or read with its description.
void WriteVersion(XmlWriter& writer, const VersionRecord& version);
void WriteDemoMode(XmlWriter& writer, const SDemoMode& demo);
void WritePrintForm(XmlWriter& writer, const SPrintFormData& print);
void WriteMonitor(XmlWriter& writer, const MonitorRecord& monitor);

/// The monitoring settings in force, with the project's video inputs.
MonitorRecord MakeMonitorRecord(const CProjectData& project);
void TakeMonitorRecord(CProjectData& project, const MonitorRecord& record);
