// Every figure of the largest walls beside the floor that its pieces set.
#include "figures.h"
#include "tablereporter.h"

#include "frame/lednimbradata.h"
#include "support/privatehome.h"

#include <QApplication>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const PrivateHome home;
    if (argc == 2 && qstrcmp(argv[1], "--cpu") == 0)
        CountCpuTime();
    else if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    QApplication application(argc, argv);
    LedNimbraData_Init();
    CommandFigures(home.Path()); // first: a command's peak of memory begins at that of this program
    FileFigures(home.Path());
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
