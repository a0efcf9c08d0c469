#include "runfigures.h"

#include "figure.h"
#include "tablereporter.h"

#include "frame/lednimbradata.h"
#include "support/privatehome.h"

#include <QApplication>

int RunFigures(int argc, char** argv, const std::function<void(const QString& home)>& add)
{
    benchmark::Initialize(&argc, argv);
    const PrivateHome home;
    if (argc == 2 && qstrcmp(argv[1], "--cpu") == 0)
        CountCpuTime();
    else if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    const QApplication application(argc, argv);
    LedNimbraData_Init();
    add(home.Path());
    TableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    LedNimbraData_Release();
    return 0;
}
