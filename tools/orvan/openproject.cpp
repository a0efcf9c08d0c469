#include "openproject.h"

#include "command.h"
#include "console.h"
#include "inputfile.h"
#include "privatefolder.h"
#include "progressline.h"

#include <OrvanData/orvandata.h>

#include <QFile>
#include <QFileInfo>

bool OpenProject(const QString& file)
{
    return OpenProject(file, *GetProjectData());
}

bool OpenProject(const QString& file, CProjectData& project)
{
    const QString path = InputPath(file);
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).isDir()) {
        Fail(StatusFile, file, QStringLiteral("is a folder"));
        return false;
    }
    ProgressLine progress(QStringLiteral("reading ") + InputName(file));
    QString version;
    if (project.LoadProjectFromFile(QFile::encodeName(path).constData(), version, progress.Bar())) {
        progress.End();
        if (!project.GetLastFileError().isEmpty())
            Warn(file, project.GetLastFileError());
        return true;
    }
    progress.End();
    Fail(StatusFile, file, project.GetLastFileError());
    return false;
}

bool SaveProject(const QString& file)
{
    ProgressLine progress(QStringLiteral("writing ") + file);
    // After the save the file beside the target is gone or renamed. A signal waits for that, also while
    // another program holds the work folder or writes the same file. The library gives up after half a minute
    // each.
    const SignalsHeld held;
    const bool saved =
        GetProjectData()->SaveProjectToFile(QFileInfo(file).absoluteFilePath(), progress.Bar());
    progress.End();
    const QString why = GetProjectData()->GetLastFileError();
    if (saved && why.isEmpty())
        return true;
    Fail(StatusFile, file, why);
    return false;
}

bool IsArchive(const QString& file)
{
    QFile content(InputPath(file));
    return content.open(QIODevice::ReadOnly) && content.peek(2) == "PK";
}
