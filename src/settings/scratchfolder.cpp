#include "settings/scratchfolder.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <unistd.h>

namespace {

constexpr qint64 kAbandonedAfter = 3600; ///< seconds

QString NameWith(const char* ending)
{
    return QStringLiteral("OrvanScratch-") + QLatin1String(ending);
}

void RemoveAbandoned()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QFileInfoList folders =
        QDir(QDir::tempPath()).entryInfoList({NameWith("??????")}, QDir::Dirs | QDir::NoSymLinks);
    for (const QFileInfo& folder : folders)
        if (folder.ownerId() == geteuid() && folder.lastModified().secsTo(now) > kAbandonedAfter)
            QDir(folder.filePath()).removeRecursively();
}

} // namespace

ScratchFolder::ScratchFolder() : m_folder(QDir::tempPath() + QLatin1Char('/') + NameWith("XXXXXX"))
{
    RemoveAbandoned();
}
