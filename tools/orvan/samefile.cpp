#include "samefile.h"

#include "inputfile.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

bool Look(const QString& file, int stream, struct stat* found)
{
    if (!IsStream(file))
        return stat(QFile::encodeName(file).constData(), found) == 0;
    return fstat(stream, found) == 0 && S_ISREG(found->st_mode); // both may be the terminal
}

} // namespace

bool IsSameFile(const QString& input, const QString& output)
{
    struct stat first = {};
    struct stat second = {};
    return Look(input, STDIN_FILENO, &first) && Look(output, STDOUT_FILENO, &second)
           && first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}
