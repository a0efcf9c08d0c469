// Pictures of the main states of the window, for eyes: designer_pictures PREFIX [dark]. See `./dev pictures`.
#include "blockdialog.h"
#include "designview.h"
#include "faultsdock.h"
#include "fileactions.h"
#include "mainwindow.h"
#include "program.h"
#include "support/text.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QScreen>
#include <QSpinBox>
#include <QTest>

namespace {

void TakePictures(const QString& prefix)
{
    Program program;
    program.Show();
    MainWindow& window = program.GetWindow();
    DesignView& view = window.GetView();
    DocumentController& document = program.GetDocument();
    window.setGeometry(0, 0, 1200, 800);
    const auto trigger = [&](const QKeySequence& key) { // whatever the language
        for (QAction* action : window.findChildren<QAction*>()) {
            if (action->shortcut() == key)
                action->trigger();
        }
    };
    const auto take = [&](const QString& name) { // with what lies over the window
        QTest::qWait(600);                       // what is laid out or checked later
        if (!QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1200, 800).save(prefix + name + ".png"_s))
            qFatal("%s was not written", qPrintable(name));
    };
    take("empty"_s);
    trigger(Qt::Key_Insert);
    auto* dialog = window.findChild<BlockDialog*>();
    dialog->findChildren<QSpinBox*>().last()->setValue(3); // cards down
    take("block"_s);
    dialog->reject();
    window.GetFiles().Open(QStringLiteral(ORVAN_SAMPLES "/small-wall.prj"));
    take("sample"_s);
    view.ActualSize();
    view.ScrollTo({});
    trigger(Qt::Key_N);
    document.SetCurrentPort(0, 0);
    document.ClearNumbers();
    for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left})
        QTest::keyClick(&view, Qt::Key(key));
    take("numbering"_s);
    trigger(Qt::Key_S);
    document.Select({document.GetPort()->GetTileSet().GetTile(0)}, DocumentController::Choice::Replace);
    document.SelectGroups();
    document.MoveSelection(QPoint(100, 100));
    document.TurnSelection(15);
    take("turned"_s);
    auto* faults = window.GetFaults().findChild<QListWidget*>();
    emit faults->itemClicked(faults->item(0));
    take("fault"_s);
    document.NewProject(); // nothing to ask at the end
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains("dark"_s)) {
        QPalette dark(QColor(53, 53, 53));
        dark.setColor(QPalette::Base, QColor(35, 35, 35));
        dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
        QApplication::setPalette(dark);
    }
    LedNimbraData_Init();
    TakePictures(arguments.value(1));
    LedNimbraData_Release();
}
