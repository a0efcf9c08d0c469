#include "command.h"
#include "console.h"
#include "samefile.h"
#include "session.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTextCodec>

#include <algorithm>
#include <clocale>
#include <cstring>
#include <fcntl.h>
#include <langinfo.h>
#include <memory>
#include <unistd.h>

namespace {

const Command* const kCommands[] = {
    &kDemoCommand,    &kNewCommand,  &kInfoCommand,    &kCheckCommand,    &kRenderCommand, &kExportCommand,
    &kPatternCommand, &kDiffCommand, &kConvertCommand, &kProductsCommand, &kParamsCommand,
};

/// Without a locale every character beyond ASCII would be lost, also in file names. Then they are UTF-8.
void UseUtf8WithoutLocale()
{
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

/// When the shell closed a standard stream, the next file opened would take its place and get what is
/// printed.
void KeepStandardStreams()
{
    int file = 0;
    do {
        file = open("/dev/null", O_RDONLY);
    } while (file >= 0 && file <= STDERR_FILENO);
    close(file);
}

/// Messages of the frameworks are no concern of whoever reads the errors of this program.
void DropFrameworkWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        Fail(StatusFile, QString(), text);
}

QStringList Arguments(int argc, char** argv)
{
    QStringList arguments{QStringLiteral("orvan")};
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

void AddCommonOptions(QCommandLineParser& parser)
{
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")});
    parser.addOption({{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Show the version.")});
    parser.addOption({QStringLiteral("documents"),
                      QStringLiteral("Work in this documents folder and keep it, instead of a private one."),
                      QStringLiteral("DIR")});
}

const Command* FindCommand(const QString& name)
{
    for (const Command* command : kCommands) {
        if (name == QLatin1String(command->name))
            return command;
    }
    return nullptr;
}

QString UsageOf(const Command& command)
{
    return QLatin1String(command.name) + QLatin1Char(' ') + QLatin1String(command.files);
}

QString Overview()
{
    int width = 0;
    for (const Command* command : kCommands)
        width = std::max(width, UsageOf(*command).size());
    QString text =
        QStringLiteral("Looks at, checks, draws and makes projects of LED video walls.\n\nCommands:\n");
    for (const Command* command : kCommands)
        text +=
            QStringLiteral("  %1  %2\n").arg(UsageOf(*command), -width).arg(QLatin1String(command->summary));
    return text
           + QStringLiteral("\n\"orvan COMMAND --help\" tells the options of a command.\n"
                            "Exit status: 0 done, 1 faults or differences found, 2 wrong usage,\n"
                            "3 a file could not be read or written.");
}

int UsageFault(const QString& what)
{
    return Fail(StatusUsage, QString(), what);
}

QString ParserFault(const QCommandLineParser& parser)
{
    const QString text = parser.errorText().section(QLatin1Char('\n'), 0, 0);
    return text.endsWith(QLatin1Char('.')) ? text.chopped(1) : text;
}

bool ShowHelpOrVersion(const QCommandLineParser& parser)
{
    const bool help = parser.isSet(QStringLiteral("help"));
    if (help)
        Print(parser.helpText());
    else if (parser.isSet(QStringLiteral("version")))
        Print(QStringLiteral("orvan " ORVAN_VERSION "\n"));
    else
        return false;
    return true;
}

/// Empty when a command takes these files, else what is wrong with them.
QString WhyNotFiles(const Command& command, const QStringList& files)
{
    const QString stream = QStringLiteral("-");
    if (files.size() < command.leastFiles || files.size() > command.mostFiles)
        return QStringLiteral("usage is orvan ") + UsageOf(command);
    if (files.contains(QString()))
        return QStringLiteral("the name of a file is empty");
    if (!command.takesStreams && files.contains(stream))
        return QStringLiteral("- stands for no file here");
    const bool printsInto = std::any_of(files.begin(), files.end(),
                                        [&](const QString& file) { return IsSameFile(file, stream); });
    return printsInto ? QStringLiteral("standard output: is one of the files given") : QString();
}

/// The status of a command that is done, unless standard output did not take all.
int Finish(int status)
{
    return FlushOutput()
               ? status
               : Fail(StatusFile, QStringLiteral("standard output"), QStringLiteral("cannot be written"));
}

/// Runs a command whose arguments are in order, in the documents folder it wants.
int RunCommand(const Command& command, const QCommandLineParser& parser)
{
    const QString given = parser.value(QStringLiteral("documents"));
    Invocation invocation{parser, parser.positionalArguments().mid(1), QString()};
    invocation.documents = given.isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                               : QFileInfo(given).absoluteFilePath();
    int status = StatusFile;
    {
        Session session;
        QString why;
        const QString folder = given.isEmpty() || command.aloneAlways ? QString() : invocation.documents;
        if (!session.Start(folder, &why))
            return Fail(StatusFile, given, why);
        status = command.run(invocation);
    }
    return Finish(status);
}

int Dispatch(const Command& command, const QStringList& arguments)
{
    SetHelp(QStringLiteral("orvan %1 --help").arg(QLatin1String(command.name)));
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(command.summary));
    AddCommonOptions(parser);
    QString files = QLatin1String(command.files);
    files.remove(QRegularExpression(QStringLiteral("[.][{][^}]*[}]"))); // too wide for the column
    parser.addPositionalArgument(files, QLatin1String(command.filesHelp), UsageOf(command));
    command.addOptions(parser);
    if (!parser.parse(arguments))
        return UsageFault(ParserFault(parser));
    if (ShowHelpOrVersion(parser))
        return Finish(StatusDone);
    const QString wrong = WhyNotFiles(command, parser.positionalArguments().mid(1));
    if (!wrong.isEmpty())
        return UsageFault(wrong);
    if (parser.isSet(QStringLiteral("documents")) && parser.value(QStringLiteral("documents")).isEmpty())
        return UsageFault(QStringLiteral("--documents takes a folder"));
    return RunCommand(command, parser);
}

} // namespace

int main(int argc, char** argv)
{
    KeepStandardStreams();
    qInstallMessageHandler(DropFrameworkWarnings);
    UseUtf8WithoutLocale();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QStringList arguments = Arguments(argc, argv);

    QCommandLineParser overview;
    overview.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    overview.setApplicationDescription(Overview());
    AddCommonOptions(overview);
    overview.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("One of the above."));
    const bool parsed = overview.parse(arguments);
    const QString name = overview.positionalArguments().value(0);
    const Command* command = FindCommand(name);

    // Starting with fonts takes longer than most commands.
    char program[] = "orvan";
    char* programArguments[] = {program, nullptr};
    int programCount = 1;
    std::unique_ptr<QCoreApplication> application;
    if (command && command->paints)
        application = std::make_unique<QGuiApplication>(programCount, programArguments);
    else
        application = std::make_unique<QCoreApplication>(programCount, programArguments);
    QCoreApplication::setApplicationName(QStringLiteral("orvan"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVAN_VERSION));

    if (!parsed)
        return UsageFault(ParserFault(overview));
    if (command)
        return Dispatch(*command, arguments);
    if (ShowHelpOrVersion(overview))
        return Finish(StatusDone);
    return UsageFault(name.isEmpty() ? QStringLiteral("no command given")
                                     : QStringLiteral("unknown command '%1'").arg(name));
}
