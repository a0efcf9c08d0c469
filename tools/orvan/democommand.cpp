#include "command.h"
#include "console.h"
#include "drawingfile.h"
#include "openproject.h"

#include <OrvanData/orvandata.h>
#include <orvantools/printable.h>
#include <orvantools/samplewall.h>

#include <QCommandLineParser>
#include <QDir>
#include <QFile>

namespace {

void AddOptions(QCommandLineParser& /*parser*/)
{}

void TellStep(const QString& line)
{
    Print(OrvanTools::Printable(line) + QLatin1Char('\n'));
}

/// Loads what was saved into a document beside the open one.
bool LoadsBackEqual(const QString& file)
{
    CProjectData second;
    QString version;
    QString difference;
    if (!second.LoadProjectFromFile(QFile::encodeName(file).constData(), version, nullptr)) {
        Fail(StatusFile, file, second.GetLastFileError());
        return false;
    }
    if (OrvanTools::IsSameProject(*GetProjectData(), second, &difference))
        return true;
    Fail(StatusFile, file, QStringLiteral("differs from what was saved at ") + difference);
    return false;
}

int Run(const Invocation& invocation)
{
    const QString folder = invocation.files.value(0, QStringLiteral("orvan-demo"));
    if (!QDir().mkpath(folder))
        return Fail(StatusFile, folder, QStringLiteral("cannot be made"));
    OrvanTools::SampleWall wall(TellStep);
    if (!wall.Build())
        return Fail(StatusFile, QString(), wall.GetFault());

    const QString file = QDir(folder).filePath(QStringLiteral("sample-wall.prj"));
    if (!SaveProject(file))
        return StatusFile;
    TellStep(QStringLiteral("saved the project"));
    if (!LoadsBackEqual(file))
        return StatusFile;
    TellStep(QStringLiteral("loaded it into a second document: equal"));
    const QString drawing = QDir(folder).filePath(QStringLiteral("sample-wall.svg"));
    const int status = WriteDrawing(drawing, QStringLiteral("svg"), {});
    if (status != StatusDone)
        return status;
    TellStep(QStringLiteral("drew the wall"));
    TellStep(file);
    TellStep(drawing);
    return StatusDone;
}

} // namespace

const Command kDemoCommand = {
    "demo",     "[DIR]", "Where the project and its drawing go, orvan-demo by default.",
    0,          1,       "Build the sample wall end to end.",
    AddOptions, Run,     true,
    false};
