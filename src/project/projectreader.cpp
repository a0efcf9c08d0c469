#include "project/projectreader.h"

using namespace projectnames;

namespace {

template <class Record> LeafReader::Take Into(Record& record, void (*describe)(AttributeReader&, Record&))
{
    return [&record, describe](XmlAttributes& attributes) {
        record = Record(); // of repeated elements the last one counts
        AttributeReader fields(attributes);
        describe(fields, record);
    };
}

} // namespace

ProjectReader::ProjectReader(ProjectContent& content, ReadReport& report, std::function<void(int)> progress)
    : m_report(report), m_root(*this),
      m_version([this](XmlAttributes& attributes) { ReadVersion(attributes); }),
      m_demo(Into<SDemoMode>(content.fields.demo, DescribeDemoMode)),
      m_senderGroups(kSenderGroupList, report, content.fields.groups),
      m_gamma(kGammaList, report, content.fields.gamma),
      m_print(Into<SPrintFormData>(content.fields.print, DescribePrintForm)),
      m_senders(report, content.senders, std::move(progress)),
      m_monitor(Into<MonitorRecord>(content.monitor, DescribeMonitor)),
      m_parameterFiles(kParameterFileList, report, content.fields.parameterFiles)
{}

XmlHandler* ProjectReader::Child(std::string_view name)
{
    m_root.wasSeen = name == kRoot;
    return m_root.wasSeen ? &m_root : nullptr;
}

XmlHandler* ProjectReader::Root::Child(std::string_view name)
{
    return m_reader.GetRefusedVersion().isNull() ? m_reader.Find(name) : nullptr;
}

XmlHandler* ProjectReader::Find(std::string_view name)
{
    if (name == kVersion)
        return &m_version;
    if (name == kDemoMode)
        return &m_demo;
    if (name == kSenderGroups)
        return &m_senderGroups;
    if (name == kGamma)
        return &m_gamma;
    if (name == kPrintForm)
        return &m_print;
    if (name == layoutnames::kSenderLayout)
        return &m_senders;
    if (name == kMonitor)
        return &m_monitor;
    if (name == kParameterFiles)
        return &m_parameterFiles;
    m_report.AddElement(name);
    return nullptr;
}

void ProjectReader::ReadVersion(XmlAttributes& attributes)
{
    VersionRecord version;
    AttributeReader fields(attributes);
    DescribeVersion(fields, version);
    if (!IsVersionReadable(version.minimum))
        m_refusedVersion = version.minimum;
}
