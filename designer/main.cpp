#include "fileactions.h"
#include "mainwindow.h"
#include "program.h"

#include "custommessagebox.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QTimer>

namespace {

int Run(const QString& file)
{
    Program program;
    const QString problem = LedNimbraData_FolderProblem();
    if (!problem.isEmpty())
        CCustomMessageBox::information(nullptr, problem);
    program.Show();
    if (!file.isEmpty())
        QTimer::singleShot(0, &program, [&] { program.GetWindow().GetFiles().Open(file); });
    const int status = QApplication::exec();
    if (!GetConfigData()->Save())
        CCustomMessageBox::information(
            nullptr,
            Program::tr("The settings could not be kept. Look whether the disk has room, and whether "
                        "files can be written in %1.")
                .arg(QDir::toNativeSeparators(CConstantData::GetSysConfigDir())));
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("orvan-designer"));
    QApplication::setApplicationDisplayName(QStringLiteral("Orvan Designer"));
    QGuiApplication::setDesktopFileName(QStringLiteral("orvan-designer"));
    QApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("orvan-designer"), QIcon(QStringLiteral(":/orvan-designer.svg"))));
    QApplication::setApplicationVersion(QStringLiteral(ORVAN_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Lays out, numbers and checks the cabinets of LED walls."));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The project to open."),
                                 QStringLiteral("[FILE]"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1)
        parser.showHelp(2);

    LedNimbraData_Init();
    const int status = Run(files.isEmpty() ? QString() : QFileInfo(files.first()).absoluteFilePath());
    LedNimbraData_Release();
    return status;
}
