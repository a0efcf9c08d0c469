// Parameter files and their blocks: the members that hosts know, over the functions of the params room.
#include "layout/changeteller.h"
#include "params/colorblocks.h"
#include "params/deviceblocks.h"
#include "params/inputblocks.h"
#include "params/outputblocks.h"
#include "params/paramfile.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"

using namespace params;

namespace {

/// Writes a block below an element. kFailed, with nothing written, for a null sender or element.
template <class Block>
quint32 Save(QDomDocument& document, QDomElement* element, const CSender* sender, const Block& block,
             bool perSource = true)
{
    if (!sender || !element)
        return kFailed;
    DomXmlWriter dom(document, *element);
    ElementWriter writer(dom, perSource);
    block(writer, *sender);
    return kDone;
}

/// Reads a block from an element; `ofNull` for a null sender or element. A block may give a result.
template <class Block>
quint32 Load(const QDomElement* element, CSender* sender, const Block& block, quint32 ofNull = kFailed,
             bool perSource = true)
{
    if (!sender || !element)
        return ofNull;
    ElementReader reader(*element, perSource);
    if constexpr (std::is_void_v<decltype(block(reader, *sender))>)
        block(reader, *sender);
    else
        return block(reader, *sender);
    return kDone;
}

const QDomElement* NotNull(const QDomElement* element)
{
    return element && !element->isNull() ? element : nullptr;
}

/// The senders meant by an id, or by the choice for a null one.
QVector<Target> Targets(const CProjectData& project, const QUuid& id)
{
    const QList<int> chosen = id.isNull() ? GetProjectLookup()->ImpExpPrepareInfo().senders
                                          : QList<int>{project.GetScIndexByID(id)};
    QVector<Target> targets;
    for (const int index : chosen)
        targets.append({index, project.GetSender(index)});
    return targets;
}

bool MatchByIp()
{
    return GetProjectLookup()->ImpExpPrepareInfo().matchByIp;
}

CSender* SenderOf(const CProjectData& project, const QUuid& id)
{
    return project.GetSender(project.GetScIndexByID(id));
}

Outcome ExportMulti(const Family& family, const CProjectData& project, const QString& path, const QUuid& id)
{
    if (!id.isNull() && !SenderOf(project, id))
        return NoSender();
    return Export(family, Targets(project, id), MatchByIp(), path);
}

Outcome ImportMulti(const Family& family, const CProjectData& project, const QString& path, const QUuid& id)
{
    return Import(family, Targets(project, id), SenderOf(project, id), MatchByIp(), path);
}

/// What an import gave. The open document's handler is told here: before the user, whom a box may keep.
template <class Run> Outcome Imported(CProjectUndoRedo* history, const Run& run)
{
    DocumentOperation operation(history);
    const Outcome outcome = run();
    if (outcome.code == kDone || outcome.told) // senders before one that does not fit have taken theirs
        operation.Changed(&SDocumentChange::properties);
    return outcome;
}

/// Keeps the reason of an outcome before the user is told, while the host may close the project.
quint32 Code(const Outcome& outcome, QString& fileError)
{
    fileError = outcome.why;
    Show(outcome);
    return outcome.code;
}

} // namespace

quint32 CProjectData::ExportMutiSenderParam(const QString& path, const QUuid& id)
{
    return Code(ExportMulti(kSenderFamily, *this, path, id), m_lastFileError);
}

quint32 CProjectData::ExportMutiProcessorParam(const QString& path, const QUuid& id)
{
    return Code(ExportMulti(kProcessorFamily, *this, path, id), m_lastFileError);
}

quint32 CProjectData::ImportSenderParam(const QString& path, const QUuid& id)
{
    const auto import = [&] { return ImportSingle(kSenderFamily, SenderOf(*this, id), path); };
    return Code(Imported(History(), import), m_lastFileError);
}

quint32 CProjectData::ImportProcessorParam(const QString& path, const QUuid& id)
{
    const auto import = [&] { return ImportSingle(kProcessorFamily, SenderOf(*this, id), path); };
    return Code(Imported(History(), import), m_lastFileError);
}

quint32 CProjectData::ImportMutiSenderParam(const QString& path, const QUuid& id)
{
    const auto import = [&] { return ImportMulti(kSenderFamily, *this, path, id); };
    return Code(Imported(History(), import), m_lastFileError);
}

quint32 CProjectData::ImportMutiProcessorParam(const QString& path, const QUuid& id)
{
    const auto import = [&] { return ImportMulti(kProcessorFamily, *this, path, id); };
    return Code(Imported(History(), import), m_lastFileError);
}

quint32 CProjectData::SaveBasicInfoParam(QDomDocument& document, CSender* sender, QDomElement* element)
{
    return Save(document, element, sender, WriteBasicInfo);
}

quint32 CProjectData::LoadBasicInfoParam(QDomDocument&, QDomElement* element, CSender* sender)
{
    const quint32 result =
        Load(element, sender, [](auto& f, auto& s) { return CheckType(f, kDeviceType, s); });
    Show(Told(result));
    return result == kDone ? kDone : kFailed;
}

quint32 CProjectData::SaveDeviceSetParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return Save(document, element, sender, DescribeDeviceSet<ElementWriter>);
}

quint32 CProjectData::LoadDeviceSetParam(QDomDocument&, QDomElement* element, CSender* sender)
{
    return Load(element, sender, DescribeDeviceSet<ElementReader>);
}

quint32 CProjectData::SaveMultiParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return Save(document, element, sender, [](auto& f, auto& s) { f.Record(kMultiRoot, s.Params().multi); });
}

quint32 CProjectData::LoadMultiParam(QDomDocument&, QDomElement& element, CSender* sender)
{
    return Load(NotNull(&element), sender,
                [](auto& f, auto& s) { f.OwnOrGroup(kMultiRoot, [&] { f.Whole(s.Params().multi); }); });
}

quint32 CProjectData::Save3DParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return Save(document, element, sender, [](auto& f, auto& s) { f.Record(k3DRoot, s.Params().stereo); });
}

quint32 CProjectData::Load3DParam(QDomDocument&, QDomElement& element, CSender* sender)
{
    return Load(NotNull(&element), sender,
                [](auto& f, auto& s) { f.OwnOrGroup(k3DRoot, [&] { f.Whole(s.Params().stereo); }); });
}

quint32 CProjectData::SaveInputParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    if (sender && sender->Params().inputVideos.isEmpty())
        return kFailed;
    return Save(document, element, sender, DescribeInputs<ElementWriter>);
}

quint32 CProjectData::LoadInputParam(QDomDocument&, QDomElement* element, CSender* sender)
{
    return Load(element, sender, DescribeInputs<ElementReader>, kNothingGiven); // callers know it so
}

quint32 CProjectData::SaveOutputParam(QDomDocument& document, CSender* sender, QDomElement* element)
{
    return Save(document, element, sender, DescribeOutput<ElementWriter>);
}

quint32 CProjectData::LoadOutputParam(QDomDocument&, QDomElement* element, CSender* sender)
{
    return Load(element, sender, DescribeOutput<ElementReader>);
}

quint32 CProjectData::LoadVideoOutParam(QDomDocument&, QDomElement* element, CSender* sender)
{
    return Load(element, sender, DescribePorts<ElementReader>);
}

quint32 CProjectData::SaveOneGroupParam(QDomDocument& document, QDomElement* element, int group,
                                        CSender* sender)
{
    return Save(document, element, sender, [group](auto& f, auto& s) { DescribeOutputGroup(f, group, s); });
}

quint32 CProjectData::LoadOneGroupParam(QDomDocument&, QDomElement* element, int group, CSender* sender)
{
    return Load(element, sender, [group](auto& f, auto& s) { DescribeOutputGroup(f, group, s); });
}

quint32 CProjectData::LoadOutputSpiltLineParam(QDomDocument&, QDomElement* element, int, CSender* sender)
{
    return Load(element, sender, DescribeCuttingLines<ElementReader>);
}

quint32 CProjectData::LoadOutputColorBrightParam(QDomDocument&, QDomElement* element, int, CSender* sender)
{
    return Load(element, sender, DescribeColorBright<ElementReader>);
}

quint32 CProjectData::LoadOutputExactColorParam(QDomDocument&, QDomElement* element, int, CSender* sender)
{
    return Load(element, sender, DescribeExactColor<ElementReader>);
}

quint32 CProjectData::SaveColorCubeParam(QDomDocument& document, QDomElement* element, CSender* sender,
                                         bool perSource)
{
    return Save(
        document, element, sender,
        [](auto& f, auto& s) { f.Group(kColorCubeRoot, [&] { DescribeColorCubes(f, s.Params()); }); },
        perSource);
}

quint32 CProjectData::LoadColorCubeParam(QDomDocument&, QDomElement& element, CSender* sender, bool perSource)
{
    return Load(
        NotNull(&element), sender,
        [](auto& f, auto& s) { f.OwnOrGroup(kColorCubeRoot, [&] { DescribeColorCubes(f, s.Params()); }); },
        kFailed, perSource);
}

quint32 CProjectData::SaveColorCurveParam(QDomDocument& document, QDomElement* element, CSender* sender,
                                          bool perSource)
{
    return Save(
        document, element, sender, [](auto& f, auto& s) { DescribeColorCurves(f, s.Params()); }, perSource);
}

quint32 CProjectData::LoadColorCurveParam(QDomDocument&, QDomElement& element, CSender* sender,
                                          bool perSource)
{
    return Load(
        NotNull(&element), sender,
        [](auto& f, auto& s) { f.OwnOrGroup(kColorCurveRoot, [&] { DescribeColorCurves(f, s.Params()); }); },
        kFailed, perSource);
}

quint32 CProjectData::WriteSingleSenderParam(QDomDocument document, QDomElement* element, CSender* sender)
{
    return Save(document, element, sender, kSenderFamily.write);
}

quint32 CProjectData::ReadSingleSenderParam(QDomDocument&, QDomElement* element, CSender* sender)
{
    return Load(NotNull(element), sender, kSenderFamily.read, kImportFailed);
}

quint32 CProjectData::WriteSingleProcessorParam(QDomDocument& document, QDomElement* element, CSender* sender)
{
    return Save(document, element, sender, kProcessorFamily.write);
}

quint32 CProjectData::ReadSingleProcessorParam(QDomDocument, QDomElement* element, CSender* sender)
{
    return Load(NotNull(element), sender, kProcessorFamily.read, kImportFailed);
}
