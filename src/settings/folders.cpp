#include "settings/folders.h"

#include "common/fileproblem.h"

#include <QFile>
#include <QStandardPaths>
#include <QStringList>

#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kShownPath = 64; ///< characters of a path that is too long

} // namespace

QString DocumentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString ProductFolder()
{
    return DocumentsFolder() + QStringLiteral("/Orvan/LedConfig/");
}

bool MakeFoldersOf(const QString& base, const QString& relativeFile, QSet<QString>* made, QString* error)
{
    const QLatin1Char separator('/');
    const QString root = base.endsWith(separator) ? base : base + separator;
    // A deeper folder could be made step by step, but not be reached or removed by its path.
    if (QFile::encodeName(root + relativeFile).size() >= PATH_MAX)
        return Fail(error, CannotMakeFolder(root + relativeFile.left(kShownPath), ENAMETOOLONG));
    QStringList missing; // the deepest first
    int end = relativeFile.lastIndexOf(separator);
    for (; end > 0 && !(made && made->contains(relativeFile.left(end)));
         end = relativeFile.lastIndexOf(separator, end - 1))
        missing.append(relativeFile.left(end));
    if (missing.isEmpty())
        return true;

    // Works with handles: looking up a path starts at its root each time and follows links.
    constexpr int flags = O_PATH | O_DIRECTORY | O_CLOEXEC;
    int folder = open(QFile::encodeName(root + relativeFile.left(qMax(end, 0))).constData(), flags);
    if (folder < 0)
        return Fail(error, CannotMakeFolder(root, errno));
    while (!missing.isEmpty()) {
        const QString below = missing.takeLast();
        const QByteArray name = QFile::encodeName(below.mid(below.lastIndexOf(separator) + 1));
        const bool there = mkdirat(folder, name.constData(), 0777) == 0 || errno == EEXIST;
        const int child = there ? openat(folder, name.constData(), flags | O_NOFOLLOW) : -1;
        const int failure = errno;
        close(folder);
        folder = child;
        if (folder < 0)
            return Fail(error, CannotMakeFolder(root + below, failure));
        if (made)
            made->insert(below);
    }
    close(folder);
    return true;
}
