#include "samefile.h"

#include <QFile>
#include <QString>

#include <sys/stat.h>

bool IsSameFile(const QString& a, const QString& b)
{
    struct stat first = {};
    struct stat second = {};
    return stat(QFile::encodeName(a).constData(), &first) == 0
           && stat(QFile::encodeName(b).constData(), &second) == 0 && first.st_dev == second.st_dev
           && first.st_ino == second.st_ino;
}
