// Every figure of the largest walls beside the floor that its pieces set.
#include "figures.h"
#include "tablereporter.h"

#include "frame/lednimbradata.h"

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 2 && qstrcmp(argv[1], "--cpu") == 0)
        CountCpuTime();
    else if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    QApplication application(argc, argv);
    LedNimbraData_Init();
    FileFigures(home.path());
    UndoFigures();
    ChainFigures();
    QueryFigures();
    EditFigures();
    ProductFigures();
    TableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    LedNimbraData_Release();
}
