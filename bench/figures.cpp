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
    Table table(argc > 1 ? argv[1] : "");
    FileFigures(table, home.path());
    UndoFigures(table);
    ChainFigures(table);
    QueryFigures(table);
    EditFigures(table);
    ProductFigures(table);
    LedNimbraData_Release();
}
