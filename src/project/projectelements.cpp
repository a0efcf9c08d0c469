#include "project/projectelements.h"

using namespace projectnames;

namespace {

template <class Record>
void WriteRecord(XmlWriter& writer, const char* element, const Record& record,
                 void (*describe)(AttributeWriter&, const Record&))
{
    writer.BeginElement(element);
    AttributeWriter fields(writer);
    describe(fields, record);
    writer.EndElement();
}

} // namespace

const ListFormat<SSenderGroupInfo> kSenderGroupList = {kSenderGroups, "SenderGroupCount", "SenderGroup_",
                                                       DescribeSenderGroup, DescribeSenderGroup};
const ListFormat<SRcvParamGamma> kGammaList = {kGamma, "ItemCount", "Gamma_", DescribeGamma, DescribeGamma};
const ListFormat<SParameterFileInfo> kParameterFileList = {kParameterFiles, "Count", "File",
                                                           DescribeParameterFile, DescribeParameterFile};

bool IsVersionReadable(const QString& minimumVersion)
{
    return !(minimumVersion.toFloat() > QString::fromLatin1(kFileVersion).toFloat() + kVersionTolerance);
}

void WriteVersion(XmlWriter& writer, const VersionRecord& version)
{
    WriteRecord<VersionRecord>(writer, kVersion, version, DescribeVersion);
}

void WriteDemoMode(XmlWriter& writer, const SDemoMode& demo)
{
    WriteRecord<SDemoMode>(writer, kDemoMode, demo, DescribeDemoMode);
}

void WritePrintForm(XmlWriter& writer, const SPrintFormData& print)
{
    WriteRecord<SPrintFormData>(writer, kPrintForm, print, DescribePrintForm);
}

void WriteMonitor(XmlWriter& writer, const MonitorRecord& monitor)
{
    WriteRecord<MonitorRecord>(writer, kMonitor, monitor, DescribeMonitor);
}
