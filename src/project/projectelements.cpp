#include "project/projectelements.h"

using namespace projectnames;

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
    writer.BeginElement(kVersion);
    AttributeWriter fields(writer);
    DescribeVersion(fields, version);
    writer.EndElement();
}

void WriteDemoMode(XmlWriter& writer, const SDemoMode& demo)
{
    writer.BeginElement(kDemoMode);
    AttributeWriter fields(writer);
    DescribeDemoMode(fields, demo);
    writer.EndElement();
}

void WritePrintForm(XmlWriter& writer, const SPrintFormData& print)
{
    writer.BeginElement(kPrintForm);
    AttributeWriter fields(writer);
    DescribePrintForm(fields, print);
    writer.EndElement();
}

void WriteMonitor(XmlWriter& writer, const MonitorRecord& monitor)
{
    writer.BeginElement(kMonitor);
    AttributeWriter fields(writer);
    DescribeMonitor(fields, monitor);
    writer.EndElement();
}
