// Every figure of the largest walls beside the floor that its pieces set.
#include "figures.h"
#include "runfigures.h"

int main(int argc, char** argv)
{
    return RunFigures(argc, argv, [](const QString& home) {
        CommandFigures(home); // first: a command's peak of memory begins at that of this program
        FileFigures(home);
        UndoFigures();
        ChainFigures();
        QueryFigures();
        EditFigures();
        ProductFigures();
    });
}
