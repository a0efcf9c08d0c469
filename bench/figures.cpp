// Every figure of the largest walls beside the floor that its pieces set. An argument limits it to the
// figures whose name holds it.
#include "figures.h"

#include "frame/lednimbradata.h"

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    LedNimbraData_Init();
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains(QStringLiteral("--cpu")))
        CountCpuTime();
    const QString last = arguments.last();
    Table table(argc < 2 || last.startsWith(QLatin1String("--")) ? std::string() : last.toStdString());
    FileFigures(table, home.path());
    UndoFigures(table);
    ChainFigures(table);
    QueryFigures(table);
    EditFigures(table);
    ProductFigures(table);
    LedNimbraData_Release();
}
