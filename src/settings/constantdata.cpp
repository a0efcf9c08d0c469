#include "settings/constantdata.h"

#include "common/inputfile.h"
#include "common/saturated.h"
#include "common/turnlock.h"
#include "settings/archive.h"
#include "settings/folders.h"
#include "settings/settingslookup.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cmath>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kPortColors = 20;
constexpr QRgb kPortColor[kPortColors] = {
    qRgb(204, 94, 16),   qRgb(62, 163, 72),   qRgb(73, 139, 217), qRgb(144, 101, 151), qRgb(168, 100, 100),
    qRgb(91, 163, 132),  qRgb(62, 108, 162),  qRgb(149, 62, 163), qRgb(176, 111, 75),  qRgb(41, 122, 87),
    qRgb(213, 148, 115), qRgb(255, 85, 255),  qRgb(21, 89, 167),  qRgb(92, 39, 130),   qRgb(235, 193, 100),
    qRgb(120, 162, 54),  qRgb(110, 109, 149), qRgb(84, 3, 192),   qRgb(79, 71, 162),   qRgb(139, 166, 164),
};
constexpr QRgb kOtherPortColor = qRgb(65, 100, 150);

QString Created(const QString& path)
{
    const QDir folder(path);
    if (!folder.exists())
        folder.mkpath(path);
    return path;
}

QString InOrvan(const char* name)
{
    return DocumentsFolder() + QStringLiteral("/Orvan/") + QLatin1String(name);
}

QString TemporaryFolder()
{
    return QDir::tempPath() + QStringLiteral("/Orvan");
}

/// Others may write into the platform's temporary folder. What they put in the place of our folder is not
/// ours.
bool IsOurFolder(const QString& path)
{
    const QFileInfo info(path);
    return !info.isSymLink() && info.isDir() && info.ownerId() == geteuid();
}

bool IsChinese()
{
    return GetSettingsLookup()->Language() == LanguageChinese;
}

int RoundHalfAway(double value)
{
    return TruncatedInt(value + (value < 0 ? -0.5 : 0.5));
}

/// `name`: of the file that a message names
SMD5 HashOf(QFile& file, const QString& name)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    if (!file.isOpen() || !hash.addData(&file)) {
        qWarning() << "MD5: the digest is not finalized:" << name;
        return SMD5();
    }
    return SMD5::FromString(QString::fromLatin1(hash.result().toHex()));
}

/// Opens a new file beside `name` that has no name itself, so that a killed program leaves nothing. False
/// when `name` is taken, or when the file system has no such files.
bool OpenNameless(QFile& file, const QString& name)
{
    const QFileInfo info(name);
    if (info.exists() || info.isSymLink())
        return false;
    const int handle =
        open(QFile::encodeName(info.path()).constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return handle >= 0 && file.open(handle, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle);
}

} // namespace

QString CConstantData::GetSysConfigDir()
{
    return Created(InOrvan("SysConfig/"));
}

QString CConstantData::GetGamutDir()
{
    return Created(InOrvan("Gamut/"));
}

QString CConstantData::GetProjectParamFileTemp()
{
    return Created(InOrvan("ProjectTemp/"));
}

QString CConstantData::GetMonitoringRecordPath()
{
    return Created(InOrvan("MonitoringRecord/"));
}

QString CConstantData::GetBKImagePath()
{
    return Created(InOrvan("BackgroundImage"));
}

QString CConstantData::GetTmpFilePath()
{
    const QString path = TemporaryFolder();
    if (!QDir(path).exists())
        QDir().mkdir(path);
    return path;
}

QString CConstantData::GetLatestProjectDir()
{
    return InOrvan("SysConfig/LatestProject.prj");
}

QString CConstantData::GetThirdPartyInfoTextPath()
{
    return Created(InOrvan("SysConfig/thirdparty.txt"));
}

QString CConstantData::GetLogPath()
{
    return Created(InOrvan(IsChinese() ? "SysConfig/ReleaseNotesCH.txt" : "SysConfig/ReleaseNotesEN.txt"));
}

QString CConstantData::GetHelpPath()
{
    return Created(QCoreApplication::applicationDirPath()
                   + (IsChinese() ? QString::fromUtf8("/Language/使用手册.pdf")
                                  : QStringLiteral("/Language/UserManual.pdf")));
}

QString CConstantData::GetTmpProjectDataPath(const QString& zipPath)
{
    const QString folder = GetTmpFilePath();
    const QString document = folder + QStringLiteral("/SaveProject/card.prj");
    if (IsOurFolder(folder)) {
        QLockFile lock(folder + QStringLiteral("/unpack.lock"));
        if (!LockInTurn(lock))
            return document;
        // The document of an earlier archive must not be taken for this one.
        QFile::remove(document);
        UnpackArchive(zipPath, folder);
    }
    return document;
}

QString CConstantData::GetSenderBKImgName(int index, bool withPath)
{
    const QString prefix = withPath ? GetBKImagePath() : QString();
    if (index < 0)
        return prefix + QStringLiteral("/Layout.png");
    return prefix + QStringLiteral("/Sender_") + QString::number(qint64(index) + 1) + QStringLiteral(".png");
}

void CConstantData::ClearTmpFilePath()
{
    const QString path = TemporaryFolder();
    if (!QDir::tempPath().isEmpty() && IsOurFolder(path))
        QDir(path).removeRecursively();
}

QColor CConstantData::GetColorByPort(int port)
{
    const int row = port % kPortColors;
    return QColor(row < 0 ? kOtherPortColor : kPortColor[row]);
}

QColor CConstantData::GetTileLineColor()
{
    return QColor(250, 250, 13);
}

QString CConstantData::GetColortoQString(const QColor& color)
{
    return QString::number(color.rgba());
}

QColor CConstantData::GetColorFromQString(const QString& text)
{
    return QColor::fromRgba(static_cast<QRgb>(text.toInt()));
}

int CConstantData::GetBightnessFromPercent(int percent, bool linear)
{
    if (linear)
        return RoundHalfAway(static_cast<double>(qint64(percent) * 255) / 100.0);
    if (percent < 0)
        return 0; // no real power of a negative base
    return RoundHalfAway(static_cast<double>(std::pow(static_cast<float>(percent) / 100.0f, 0.4f) * 255.0f));
}

SMD5 CConstantData::GetMD5FromFile(const QString& path)
{
    // Copies the file first and hashes the copy: another program may be writing the file, and copying is
    // short.
    QFile source(path);
    QFile scratch;
    if (!OpenInput(source) || !OpenNameless(scratch, DocumentsFolder() + QStringLiteral("/tmpfile")))
        return HashOf(source, path);
    if (CopyContent(source, scratch) && scratch.seek(0))
        return HashOf(scratch, path);
    source.seek(0);
    return HashOf(source, path);
}

void CConstantData::ZipFile(const QString& folder, const QString& zipPath)
{
    PackFolder(folder, zipPath);
}

void CConstantData::UnZipFile(const QString& zipPath, const QString& folder)
{
    UnpackArchive(zipPath, folder);
}
