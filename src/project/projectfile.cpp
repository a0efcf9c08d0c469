// The project file: saving to an archive, loading from an archive or a bare document.
#include "common/fileproblem.h"
#include "common/inputfile.h"
#include "common/texts.h"
#include "common/xmlwriter.h"
#include "layout/sender.h"
#include "layout/tile.h"
#include "monitor/monitordata.h"
#include "products/productdirectoryset.h"
#include "project/layoutwriter.h"
#include "project/parameterwork.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"
#include "project/projectreader.h"

#include "customprogressbar.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace {

constexpr int kLockTimeout = 30000; ///< milliseconds
/// Milliseconds. No save takes that long, and it is less than the timeout: a program that was killed before
/// it wrote its name into the lock file costs a wait.
constexpr int kStaleLockTime = 20000;

std::function<void(int)> Reports(CCustomProgressbar* progress)
{
    if (!progress)
        return {};
    return [progress](int percent) { progress->SetValue(percent); };
}

bool LockWorkFolder(QLockFile& lock)
{
    lock.setStaleLockTime(kStaleLockTime);
    if (!lock.tryLock(kLockTimeout))
        return false;
    // What a program left that was killed while it removed the lock of another one.
    const QFileInfo info(parameterwork::LockPath());
    QDir folder(info.path());
    for (const QString& name : folder.entryList({info.fileName() + QStringLiteral(".rmlock*")}, QDir::Files))
        folder.remove(name);
    return true;
}

} // namespace

bool CProjectData::FailFile(const QString& why)
{
    m_lastFileError = why;
    return false;
}

QString CProjectData::GetLastFileError() const
{
    return m_lastFileError;
}

bool CProjectData::TakeWorkFolder(QLockFile& lock, const QString& archive)
{
    if (!LockWorkFolder(lock))
        return FailFile(lock.error() == QLockFile::LockFailedError
                            ? Texts::tr("另一个程序正在使用项目工作文件夹。")
                            : WhyNotWritable(QFileInfo(parameterwork::LockPath()).path()));
    return !parameterwork::IsInTheWay(archive)
           || FailFile(Texts::tr("项目文件不能是项目工作文件夹里的临时文件。"));
}

bool CProjectData::SaveProjectToFile(const QString& path, CCustomProgressbar* progress)
{
    m_lastFileError.clear();
    QLockFile lock(parameterwork::LockPath());
    if (!IsWithinLimits() || !TakeWorkFolder(lock, path) || !SaveDocument(progress))
        return false;

    ReadReport report;
    // A full disk must not cost the files in the archive that is replaced.
    const bool complete =
        parameterwork::CollectForSaving(m_parameterFiles, GetProjectLookup()->Products(), report);
    QString error;
    const bool saved = complete && parameterwork::Pack(path, &error);
    m_lastFileError = report.Text();
    if (!saved)
        m_lastFileError = Texts::tr("项目文件没有保存：%1").arg(complete ? error : report.GetRefusal());
    return true;
}

bool CProjectData::IsWithinLimits()
{
    QList<const CSender*> senders;
    for (const CSender* sender : qAsConst(m_senders))
        senders.append(sender);
    const QString why = WhyTooLarge(senders);
    if (!why.isEmpty())
        return FailFile(why);
    const std::pair<int, const char*> lists[] = {{m_groups.size(), kSenderGroupList.child},
                                                 {m_gamma.size(), kGammaList.child},
                                                 {m_parameterFiles.size(), kParameterFileList.child}};
    for (const auto& [count, child] : lists)
        if (count > kMaxListRecords)
            return FailFile(TooMany(child, kMaxListRecords));
    return true;
}

bool CProjectData::SaveDocument(CCustomProgressbar* progress)
{
    QString refusal;
    QString error;
    const auto write = [&](QIODevice& file) {
        StreamXmlWriter writer(file);
        WriteDocument(writer, progress);
        const bool written = writer.Flush();
        refusal = writer.GetRefusal();
        return written;
    };
    return parameterwork::ReplaceDocument(write, &error) || FailFile(refusal.isEmpty() ? error : refusal);
}

void CProjectData::WriteDocument(XmlWriter& writer, CCustomProgressbar* progress) const
{
    writer.BeginElement(projectnames::kRoot);
    WriteVersion(writer, {GetMinVersionSupport(), QString::fromLatin1(kFileVersion).toDouble()});
    WriteDemoMode(writer, m_demo);
    WriteList(writer, kSenderGroupList, m_groups);
    WriteList(writer, kGammaList, m_gamma);
    WritePrintForm(writer, m_print);
    WriteSenders(writer, m_senders, Reports(progress));
    WriteMonitor(writer, MakeMonitorRecord());
    WriteList(writer, kParameterFileList, m_parameterFiles);
    writer.EndElement();
}

QString CProjectData::GetMinVersionSupport() const
{
    const auto hasMultiReceiverTile = [](CSender& sender) {
        for (int i = 0; i < kMaxPorts; ++i) {
            const CTileSet* tiles = sender.GetPort(i)->GetPortProject()->GetTileSet();
            for (int t = 0; t < tiles->GetCount(); ++t)
                if (tiles->GetTile(t)->IsMultiRcvTile())
                    return true;
        }
        return false;
    };
    QString version = QStringLiteral("4.0");
    for (CSender* sender : m_senders) {
        if (hasMultiReceiverTile(*sender)) {
            version = QStringLiteral("4.2");
            break;
        }
    }
    // What the cabinets need decided once; every file now asks for the version that knows all elements
    // written.
    version = QStringLiteral("4.5");
    return version;
}

bool CProjectData::LoadProjectFromFile(const char* path, QString& error, CCustomProgressbar* progress)
{
    m_lastFileError.clear();
    if (!path)
        return FailFile(Texts::tr("没有给出文件。"));
    const QString name = QFile::decodeName(path);
    QFile file(name);
    if (!OpenInput(file, &m_lastFileError))
        return false;
    const QByteArray start = file.peek(2);
    file.close();

    QString version;
    bool loaded = false;
    if (start == "PK")
        loaded = LoadArchive(name, version, progress);
    else if (start == "<?")
        loaded = LoadDocument(name, version, progress, {});
    else
        return FailFile(Texts::tr("不是项目文件。"));
    if (!version.isNull())
        error = version;
    return loaded;
}

bool CProjectData::LoadArchive(const QString& path, QString& version, CCustomProgressbar* progress)
{
    QLockFile lock(parameterwork::LockPath());
    if (!TakeWorkFolder(lock, path))
        return false;
    QString error;
    if (!parameterwork::MakeProjectFolder(&error) || !parameterwork::UnpackDocument(path, &error))
        return FailFile(error);
    return LoadDocument(parameterwork::DocumentPath(), version, progress,
                        [&path](const QList<SParameterFileInfo>& rows, ReadReport& report) {
                            parameterwork::DistributeAfterLoading(path, rows, GetProjectLookup()->Products(),
                                                                  report);
                        });
}

bool CProjectData::LoadDocument(
    const QString& path, QString& version, CCustomProgressbar* progress,
    const std::function<void(const QList<SParameterFileInfo>&, ReadReport&)>& distribute)
{
    QFile file(path);
    if (!OpenInput(file, &m_lastFileError))
        return false;
    ProjectContent content;
    ReadReport report;
    ProjectReader reader(content, report, Reports(progress));
    QString error;
    if (!ParseXml(file, reader, &error))
        return FailFile(error);
    if (!reader.HasRoot())
        return FailFile(Texts::tr("不是项目文件。"));
    version = reader.GetRefusedVersion();
    if (!version.isNull())
        return FailFile(Texts::tr("此文件需要版本%1，本程序尚不支持。").arg(version));

    const QList<SParameterFileInfo> rows = TakeContent(content);
    if (distribute)
        distribute(rows, report);
    RestartHistory();
    m_lastFileError = report.Text();
    return true;
}

QList<SParameterFileInfo> CProjectData::TakeContent(ProjectContent& content)
{
    ClearLists();
    m_demo = content.demo;
    m_groups = content.senderGroups;
    m_gamma = content.gamma;
    m_print = content.print;
    TakeSenders(std::move(content.senders));
    TakeMonitorRecord(content.monitor);
    return TakeParameterFiles(content.parameterFiles);
}

void CProjectData::TakeSenders(std::vector<std::unique_ptr<CSender>> senders)
{
    DestroySenders();
    for (std::unique_ptr<CSender>& sender : senders)
        m_senders.append(sender.release());
    if (!GetCurrentSender())
        m_currentSender = 0;
}

MonitorRecord CProjectData::MakeMonitorRecord() const
{
    MonitorRecord record;
    const CMonitorData* monitor = GetProjectLookup()->Monitor();
    const CMonitorInterfaceData data = monitor ? monitor->GetInterfaceData() : CMonitorInterfaceData();
    record.intervalTime = data.GetIntervalTime();
    record.sender = data.GetSenderSetting();
    record.videoInputs = GetVideoInfoString();
    record.receiver = data.GetReceiverSetting();
    record.mail = data.GetMailSetting();
    record.mailReceivers = GetMailReceiversString();
    record.line = data.GetLineSetting();
    return record;
}

void CProjectData::TakeMonitorRecord(const MonitorRecord& record)
{
    SSenderSetting sender = record.sender;
    SetVideoInfoFromString(sender, record.videoInputs);
    SEmailSetting mail = record.mail;
    SetReceiversFromString(mail, record.mailReceivers);

    CMonitorInterfaceData data;
    data.SetIntervalTime(record.intervalTime);
    data.SetSenderSetting(sender);
    data.SetReceiverSetting(record.receiver);
    data.SetMailSetting(mail);
    data.SetLineSetting(record.line);
    if (CMonitorData* monitor = GetProjectLookup()->Monitor())
        monitor->SetInterfaceData(data);
}
