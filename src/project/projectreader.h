#pragma once

#include "project/layoutreader.h"
#include "project/projectelements.h"

/// What a project file holds, read whole before anything of an open document is touched.
struct ProjectContent
{
    ProjectFields fields;
    SenderLayoutReader::Senders senders;
    MonitorRecord monitor;
};

/// Reads the document of a project file. Behind a version that is too new nothing is read.
class ProjectReader : public XmlHandler
{
public:
    /// [ref] All three are filled as the reading goes; `progress` may be empty.
    ProjectReader(ProjectContent& content, ReadReport& report, std::function<void(int)> progress);

    /// The minimum version that is too new, null when all was read.
    QString GetRefusedVersion() const { return m_refusedVersion; }

    bool HasRoot() const { return m_root.wasSeen; } ///< whether the root was that of a project

    XmlHandler* Child(std::string_view name) override;
    QString GetRefusal() const override { return m_report.GetRefusal(); }

private:
    class Root : public XmlHandler
    {
    public:
        explicit Root(ProjectReader& reader) : m_reader(reader) {}
        XmlHandler* Child(std::string_view name) override;

        bool wasSeen = false;

    private:
        ProjectReader& m_reader;
    };

    void ReadVersion(XmlAttributes& attributes);
    XmlHandler* Find(std::string_view name);

    ReadReport& m_report;
    QString m_refusedVersion;
    Root m_root;
    LeafReader m_version;
    LeafReader m_demo;
    ListReader<SSenderGroupInfo> m_senderGroups;
    ListReader<SRcvParamGamma> m_gamma;
    LeafReader m_print;
    SenderLayoutReader m_senders;
    LeafReader m_monitor;
    ListReader<SParameterFileInfo> m_parameterFiles;
};
