// What the static library OrvanTools does for a host, in a program of its own: builds a wall in a folder,
// tells what is wrong with it and draws it.
#include <OrvanData/orvandata.h>
#include <orvantools/layoutcheck.h>
#include <orvantools/layoutdrawing.h>
#include <orvantools/newproject.h>

#include <QApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

namespace {

bool Build()
{
    OrvanTools::NewProject wanted;
    wanted.grid = QSize(8, 4);
    wanted.ports = 2;
    wanted.order = AutoNumberRowsTopLeft;
    return OrvanTools::BuildProject(*GetProjectData(), wanted);
}

bool HasFaults()
{
    const QList<OrvanTools::Fault> faults = OrvanTools::CheckProject(*GetProjectData(), {});
    for (const OrvanTools::Fault& fault : faults)
        std::fprintf(stderr, "%s\n", qPrintable(fault.Line()));
    return !faults.isEmpty();
}

bool Draw(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)
        && OrvanTools::WriteLayout(file, OrvanTools::DrawingFormat::Svg, *GetProjectData(), {})
        && file.flush())
        return true;
    std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(file.errorString()));
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a drawing needs no display
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: orvandata-drawing FOLDER\n");
        return 2;
    }
    const QString path = QDir(QFile::decodeName(argv[1])).filePath(QStringLiteral("wall.svg"));

    LedNimbraData_Init();
    const bool done = Build() && !HasFaults() && Draw(path);
    LedNimbraData_Release();
    if (done)
        std::printf("drawn: %s\n", qPrintable(path));
    return done ? 0 : 1;
}
