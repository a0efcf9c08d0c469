#include "settings/translationfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace {

/// Where the library itself lies, or the program that it is linked into. Empty when the system does not tell.
QString OwnFolder()
{
    static const char here = 0;
    Dl_info info;
    return dladdr(&here, &info) && info.dli_fname
               ? QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath()
               : QString();
}

} // namespace

QString FindTranslation(const QString& described)
{
    if (described.isEmpty() || QFileInfo(described).isFile())
        return described;
    const QString folder = OwnFolder();
    if (folder.isEmpty())
        return QString();
    const QString name = QLatin1Char('/') + QFileInfo(described).fileName();
    for (const char* place : {ORVANDATA_TRANSLATIONS, "Language"}) {
        // An absolute place stays as it is.
        const QString path = QDir::cleanPath(QDir(folder).filePath(QString::fromUtf8(place)) + name);
        if (QFileInfo(path).isFile())
            return path;
    }
    return QString();
}
