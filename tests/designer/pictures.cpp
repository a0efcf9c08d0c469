// Pictures of the main states of the window, for eyes: designer_pictures PREFIX [dark]. See `./dev pictures`.
#include "blockdialog.h"
#include "designview.h"
#include "faultsdock.h"
#include "fileactions.h"
#include "mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QScreen>
#include <QSpinBox>
#include <QTest>
#include <QTranslator>

namespace {

/// As many systems have it.
QPalette DarkPalette()
{
    QPalette dark(QColor(53, 53, 53));
    dark.setColor(QPalette::Base, QColor(35, 35, 35));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return dark;
}

class Pictures
{
public:
    explicit Pictures(const QString& prefix) : m_prefix(prefix)
    {
        m_window.setGeometry(0, 0, 1200, 800);
        m_window.show();
    }

    void TakeAll()
    {
        Take("empty");
        Trigger(Qt::Key_Insert);
        auto* dialog = m_window.findChild<BlockDialog*>();
        dialog->findChildren<QSpinBox*>().last()->setValue(3); // cards down
        Take("block");
        dialog->reject();
        m_window.GetFiles().Open(QStringLiteral(ORVAN_SAMPLES "/small-wall.prj"));
        Take("sample");
        View().ActualSize();
        View().ScrollTo({});
        Trigger(Qt::Key_N);
        Document().SetCurrentPort(0, 0);
        Document().ClearNumbers();
        for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left})
            QTest::keyClick(&View(), Qt::Key(key));
        Take("numbering");
        Trigger(Qt::Key_S);
        Document().SelectBlock(*Document().GetPort()->GetTileSet().GetTile(0));
        Document().MoveSelection(QPoint(100, 100));
        Document().TurnSelection(15);
        Take("turned");
        QTest::qWait(500); // the check waits a moment
        auto* faults = m_window.GetFaults().findChild<QListWidget*>();
        emit faults->itemClicked(faults->item(0));
        Take("fault");
        Document().NewProject(); // nothing to ask at the end
    }

private:
    DocumentController& Document() { return m_window.GetDocument(); }
    DesignView& View() { return m_window.GetView(); }
    void Trigger(const QKeySequence& key) ///< whatever the language
    {
        for (QAction* action : m_window.findChildren<QAction*>()) {
            if (action->shortcut() == key)
                action->trigger();
        }
    }
    void Take(const char* name) ///< of the screen, with what lies over the window
    {
        QTest::qWait(300);
        const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1200, 800);
        if (!picture.save(m_prefix + QLatin1String(name) + QStringLiteral(".png")))
            qFatal("%s is not written", name);
    }

    QString m_prefix;
    MainWindow m_window;
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(QStringLiteral("dark")))
        QApplication::setPalette(DarkPalette());
    LedNimbraData_Init();
    QTranslator translator;
    if (translator.load(GetConfigData()->GetTranslationPath()))
        QCoreApplication::installTranslator(&translator);
    Pictures(arguments.value(1)).TakeAll();
    LedNimbraData_Release();
}
