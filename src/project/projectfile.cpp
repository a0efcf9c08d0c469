// The project file: saving to an archive, loading from an archive or a bare document.
#include "common/failure.h"
#include "common/fileproblem.h"
#include "common/inputfile.h"
#include "common/texts.h"
#include "common/turnlock.h"
#include "common/xmlwriter.h"
#include "layout/changeteller.h"
#include "products/productdirectoryset.h"
#include "project/layoutwriter.h"
#include "project/parameterwork.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"
#include "project/projectreader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace {

bool LockWorkFolder(QLockFile& lock)
{
    if (!LockInTurn(lock))
        return false;
    // Left by a program that was killed while it removed another one's lock.
    const QFileInfo info(parameterwork::LockPath());
    QDir folder(info.path());
    for (const QString& name : folder.entryList({info.fileName() + QStringLiteral(".rmlock*")}, QDir::Files))
        folder.remove(name);
    return true;
}

/// Takes the lock of the work folder for an archive, which must not lie in the way there.
bool TakeWorkFolder(QLockFile& lock, const QString& archive, QString* error)
{
    if (!LockWorkFolder(lock))
        return Fail(error, lock.error() == QLockFile::LockFailedError
                               ? Texts::tr("另一个程序正在使用项目工作文件夹。")
                               : WhyNotWritable(QFileInfo(parameterwork::LockPath()).path()));
    return !parameterwork::IsInTheWay(archive)
           || Fail(error, Texts::tr("项目文件不能是项目工作文件夹里的临时文件。"));
}

/// Whether a file of these would be read whole again.
bool IsWithinLimits(const QList<CSender*>& senders, const ProjectFields& fields, QString* error)
{
    const QString why = WhyTooLarge(QList<const CSender*>(senders.begin(), senders.end()));
    if (!why.isEmpty())
        return Fail(error, why);
    const std::pair<int, const char*> lists[] = {{fields.groups.size(), kSenderGroupList.child},
                                                 {fields.gamma.size(), kGammaList.child},
                                                 {fields.parameterFiles.size(), kParameterFileList.child}};
    for (const auto& [count, child] : lists)
        if (count > kMaxListRecords)
            return Fail(error, TooMany(child, kMaxListRecords));
    return true;
}

void WriteDocument(XmlWriter& writer, const CProjectData& project, const ProjectFields& fields,
                   CCustomProgressbar* progress)
{
    writer.BeginElement(projectnames::kRoot);
    WriteVersion(writer, {project.GetMinVersionSupport(), QString::fromLatin1(kFileVersion).toDouble()});
    WriteDemoMode(writer, fields.demo);
    WriteList(writer, kSenderGroupList, fields.groups);
    WriteList(writer, kGammaList, fields.gamma);
    WritePrintForm(writer, fields.print);
    WriteSenders(writer, project.GetSenders(), Reports(progress));
    WriteMonitor(writer, MakeMonitorRecord(project));
    WriteList(writer, kParameterFileList, fields.parameterFiles);
    writer.EndElement();
}

/// Fills the content; what the document says of it goes into the report. `version`: the minimum version of
/// one that is too new.
bool ReadDocument(const QString& path, ProjectContent& content, ReadReport& report, QString& version,
                  CCustomProgressbar* progress, QString* error)
{
    QFile file(path);
    if (!OpenInput(file, error))
        return false;
    ProjectReader reader(content, report, Reports(progress));
    if (!ParseXml(file, reader, error))
        return false;
    if (!reader.HasRoot())
        return Fail(error, Texts::tr("不是项目文件。"));
    version = reader.GetRefusedVersion();
    return version.isNull() || Fail(error, Texts::tr("此文件需要版本%1，本程序尚不支持。").arg(version));
}

} // namespace

bool CProjectData::SaveProjectToFile(const QString& path, CCustomProgressbar* progress)
{
    DocumentOperation operation(History()); // ends when the lock has gone
    m_lastFileError.clear();
    m_archiveWritten = false;
    const auto write = [&](XmlWriter& writer) { WriteDocument(writer, *this, m_state, progress); };
    QLockFile lock(parameterwork::LockPath());
    if (!IsWithinLimits(m_senders, m_state, &m_lastFileError) || !TakeWorkFolder(lock, path, &m_lastFileError)
        || !WriteXml(parameterwork::ReplaceDocument, write, &m_lastFileError))
        return false;

    ReadReport report;
    // A full disk must not cost the files in the archive that is replaced.
    const bool complete =
        parameterwork::CollectForSaving(m_state.parameterFiles, GetProjectLookup()->Products(), report);
    QString error;
    m_archiveWritten = complete && parameterwork::Pack(path, &error);
    m_lastFileError = report.Text();
    if (m_archiveWritten)
        operation.Changed(&SDocumentChange::saved);
    else
        m_lastFileError = Texts::tr("项目文件没有保存：%1").arg(complete ? error : report.GetRefusal());
    return true;
}

QString CProjectData::GetMinVersionSupport() const
{
    return QStringLiteral("4.5"); // the first that knows all elements written
}

bool CProjectData::LoadProjectFromFile(const char* path, QString& error, CCustomProgressbar* progress)
{
    DocumentOperation operation(History()); // ends when the lock has gone
    m_lastFileError.clear();
    if (!path)
        return Fail(&m_lastFileError, Texts::tr("没有给出文件。"));
    const QString name = QFile::decodeName(path);
    QFile file(name);
    if (!OpenInput(file, &m_lastFileError))
        return false;
    const QByteArray start = file.peek(2);
    file.close();

    QString version;
    bool loaded = false;
    if (start == "PK") {
        QLockFile lock(parameterwork::LockPath());
        loaded = TakeWorkFolder(lock, name, &m_lastFileError)
                 && parameterwork::MakeProjectFolder(&m_lastFileError)
                 && parameterwork::UnpackDocument(name, &m_lastFileError)
                 && LoadDocument(parameterwork::DocumentPath(), name, version, progress);
    } else if (start == "<?") {
        loaded = LoadDocument(name, QString(), version, progress);
    } else {
        return Fail(&m_lastFileError, Texts::tr("不是项目文件。"));
    }
    if (!version.isNull())
        error = version;
    return loaded;
}

bool CProjectData::LoadDocument(const QString& path, const QString& archive, QString& version,
                                CCustomProgressbar* progress)
{
    ProjectContent content;
    ReadReport report;
    if (!ReadDocument(path, content, report, version, progress, &m_lastFileError))
        return false;
    const QList<SParameterFileInfo> rows = parameterwork::SafelyNamed(content.fields.parameterFiles);
    content.fields.parameterFiles = parameterwork::WithoutNameless(rows);
    static_cast<ProjectFields&>(m_state) = content.fields;
    TakeSenders(Released(content.senders));
    TakeMonitorRecord(*this, content.monitor);
    if (!archive.isEmpty())
        parameterwork::DistributeAfterLoading(archive, rows, GetProjectLookup()->Products(), report);
    RestartHistory();
    m_lastFileError = report.Text();
    return true;
}
