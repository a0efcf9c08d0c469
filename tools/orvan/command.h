#pragma once

#include <QString>
#include <QStringList>

class QCommandLineParser;

/// Exit status of the command.
enum ExitStatus : int
{
    StatusDone = 0,
    StatusFaults = 1, ///< the file was read and has faults, or two were and differ
    StatusUsage = 2,
    StatusFile = 3, ///< a file could not be read or written
};

/// What a command is run with.
struct Invocation
{
    const QCommandLineParser& parser;
    QStringList files; ///< positional arguments behind the command's name
    QString documents; ///< the user's documents folder, or the one given instead

    QString ProductFolder() const { return documents + QStringLiteral("/Orvan/LedConfig"); }
};

/// One command of the program.
struct Command
{
    const char* name;
    const char* files; ///< positional arguments as the usage line shows them
    const char* filesHelp;
    int leastFiles;
    int mostFiles;
    const char* summary;
    void (*addOptions)(QCommandLineParser&);
    int (*run)(const Invocation&);
    bool paints;               ///< needs fonts
    bool aloneAlways;          ///< works in a private documents folder even when one is given
    bool takesStreams = false; ///< "-" stands for standard input, and for standard output
};

extern const Command kCheckCommand;
extern const Command kConvertCommand;
extern const Command kDemoCommand;
extern const Command kExportCommand;
extern const Command kDiffCommand;
extern const Command kInfoCommand;
extern const Command kNewCommand;
extern const Command kParamsCommand;
extern const Command kPatternCommand;
extern const Command kProductsCommand;
extern const Command kRenderCommand;
