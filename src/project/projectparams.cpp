// Parameter files and their blocks: the members that hosts know, over the functions of the params room.
#include "params/colorblocks.h"
#include "params/deviceblocks.h"
#include "params/inputblock.h"
#include "params/outputblock.h"
#include "params/paramfile.h"
#include "params/paramslookup.h"
#include "params/processorelement.h"
#include "params/senderelement.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"

namespace {

/// Lets the parameter files see a project's senders and the choice that the user prepared.
class ProjectParams : public ParamsLookup
{
public:
    ProjectParams(const CProjectData& project, QString& fileError)
        : m_project(project), m_fileError(fileError)
    {
        m_fileError.clear();
    }

    CSender* Sender(int index) const override { return m_project.GetSender(index); }
    int SenderIndex(const QUuid& id) const override { return m_project.GetScIndexByID(id); }
    SImpExpPrepareInfo Prepared() const override { return GetProjectLookup()->ImpExpPrepareInfo(); }
    void SetFileError(const QString& reason) override { m_fileError = reason; }

private:
    const CProjectData& m_project;
    QString& m_fileError;
};

} // namespace

quint32 CProjectData::ExportMutiSenderParam(const QString& path, const QUuid& id)
{
    ProjectParams lookup(*this, m_lastFileError);
    return params::ExportMutiSenderParam(lookup, path, id);
}

quint32 CProjectData::ExportMutiProcessorParam(const QString& path, const QUuid& id)
{
    ProjectParams lookup(*this, m_lastFileError);
    return params::ExportMutiProcessorParam(lookup, path, id);
}

quint32 CProjectData::ImportSenderParam(const QString& path, const QUuid& id)
{
    ProjectParams lookup(*this, m_lastFileError);
    return params::ImportSenderParam(lookup, path, id);
}

quint32 CProjectData::ImportProcessorParam(const QString& path, const QUuid& id)
{
    ProjectParams lookup(*this, m_lastFileError);
    return params::ImportProcessorParam(lookup, path, id);
}

quint32 CProjectData::ImportMutiSenderParam(const QString& path, const QUuid& id)
{
    ProjectParams lookup(*this, m_lastFileError);
    return params::ImportMutiSenderParam(lookup, path, id);
}

quint32 CProjectData::ImportMutiProcessorParam(const QString& path, const QUuid& id)
{
    ProjectParams lookup(*this, m_lastFileError);
    return params::ImportMutiProcessorParam(lookup, path, id);
}

quint32 CProjectData::SaveBasicInfoParam(QDomDocument& document, CSender* sender, QDomElement* element)
{
    return params::SaveBasicInfoParam(document, sender, element);
}

quint32 CProjectData::LoadBasicInfoParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::LoadBasicInfoParam(document, element, sender);
}

quint32 CProjectData::SaveDeviceSetParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::SaveDeviceSetParam(document, element, sender);
}

quint32 CProjectData::LoadDeviceSetParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::LoadDeviceSetParam(document, element, sender);
}

quint32 CProjectData::SaveMultiParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::SaveMultiParam(document, element, sender);
}

quint32 CProjectData::LoadMultiParam(QDomDocument& document, QDomElement& element, CSender* sender)
{
    return params::LoadMultiParam(document, element, sender);
}

quint32 CProjectData::Save3DParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::Save3DParam(document, element, sender);
}

quint32 CProjectData::Load3DParam(QDomDocument& document, QDomElement& element, CSender* sender)
{
    return params::Load3DParam(document, element, sender);
}

quint32 CProjectData::SaveInputParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::SaveInputParam(document, element, sender);
}

quint32 CProjectData::LoadInputParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::LoadInputParam(document, element, sender);
}

quint32 CProjectData::SaveOutputParam(QDomDocument& document, CSender* sender, QDomElement* element)
{
    return params::SaveOutputParam(document, sender, element);
}

quint32 CProjectData::LoadOutputParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::LoadOutputParam(document, element, sender);
}

quint32 CProjectData::LoadVideoOutParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::LoadVideoOutParam(document, element, sender);
}

quint32 CProjectData::SaveOneGroupParam(QDomDocument& document, QDomElement* element, int group,
                                        CSender* sender)
{
    return params::SaveOneGroupParam(document, element, group, sender);
}

quint32 CProjectData::LoadOneGroupParam(QDomDocument& document, QDomElement* element, int group,
                                        CSender* sender)
{
    return params::LoadOneGroupParam(document, element, group, sender);
}

quint32 CProjectData::LoadOutputSpiltLineParam(QDomDocument& document, QDomElement* element, int group,
                                               CSender* sender)
{
    return params::LoadOutputSpiltLineParam(document, element, group, sender);
}

quint32 CProjectData::LoadOutputColorBrightParam(QDomDocument& document, QDomElement* element, int group,
                                                 CSender* sender)
{
    return params::LoadOutputColorBrightParam(document, element, group, sender);
}

quint32 CProjectData::LoadOutputExactColorParam(QDomDocument& document, QDomElement* element, int group,
                                                CSender* sender)
{
    return params::LoadOutputExactColorParam(document, element, group, sender);
}

quint32 CProjectData::SaveColorCubeParam(QDomDocument& document, QDomElement* element, CSender* sender,
                                         bool perSource)
{
    return params::SaveColorCubeParam(document, element, sender, perSource);
}

quint32 CProjectData::LoadColorCubeParam(QDomDocument& document, QDomElement& element, CSender* sender,
                                         bool perSource)
{
    return params::LoadColorCubeParam(document, element, sender, perSource);
}

quint32 CProjectData::SaveColorCurveParam(QDomDocument& document, QDomElement* element, CSender* sender,
                                          bool perSource)
{
    return params::SaveColorCurveParam(document, element, sender, perSource);
}

quint32 CProjectData::LoadColorCurveParam(QDomDocument& document, QDomElement& element, CSender* sender,
                                          bool perSource)
{
    return params::LoadColorCurveParam(document, element, sender, perSource);
}

quint32 CProjectData::WriteSingleSenderParam(QDomDocument document, QDomElement* element, CSender* sender)
{
    return params::WriteSingleSenderParam(document, element, sender);
}

quint32 CProjectData::ReadSingleSenderParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::ReadSingleSenderParam(document, element, sender);
}

quint32 CProjectData::WriteSingleProcessorParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return params::WriteSingleProcessorParam(document, element, sender);
}

quint32 CProjectData::ReadSingleProcessorParam(QDomDocument document, QDomElement* element, CSender* sender)
{
    return params::ReadSingleProcessorParam(document, element, sender);
}
