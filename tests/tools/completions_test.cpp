#include "support/testfolder.h"
#include "tools/runorvan.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

namespace {

QSet<QString> Matches(const char* pattern, const QString& text)
{
    QSet<QString> found;
    QRegularExpressionMatchIterator matches =
        QRegularExpression(Arg(pattern), QRegularExpression::MultilineOption).globalMatch(text);
    while (matches.hasNext())
        found.insert(matches.next().captured(1));
    return found;
}

/// Known to the completions before the command knows them.
const char* const kComing[] = {"info --port-pixels", "info --fps",      "info --depth",
                               "check --all",        "check --ignore",  "render --port-pixels",
                               "render --fps",       "render --depth",  "render --port",
                               "render --rear",      "render --sheets", "render --paper"};

} // namespace

TEST(CompletionsTest, EachShellAndTheManualNameTheOptionsOfEachHelp)
{
    const QString bash = Arg(ORVAN_COMPLETIONS "/orvan.bash");
    const QString manual = Arg(ReadFile(Arg(ORVAN_COMPLETIONS "/../../../docs/orvan.1")));
    const QString zsh = Arg(ReadFile(Arg(ORVAN_COMPLETIONS "/_orvan")));
    const auto listed = [&zsh](const char* name) {
        return zsh.section(Arg(name) + Arg("=("), 1).section(Arg("\n    )"), 0, 0);
    };
    const QString commands =
        Arg(RunOrvan({Arg("--help")}).output).section(Arg("Commands:"), 1).section(Arg("\n\n"), 0, 0);
    EXPECT_GE(Matches("^  ([a-z]+) ", commands).size(), 9);
    for (const QString& command : Matches("^  ([a-z]+) ", commands)) {
        QSet<QString> options =
            Matches("^  (?:-[a-z], )?(--[a-z-]+)", Arg(RunOrvan({command, Arg("--help")}).output));
        for (const char* coming : kComing) {
            if (Arg(coming).startsWith(command + Arg(" ")))
                options.insert(Arg(coming).section(Arg(" "), 1));
        }
        const OrvanRun run =
            RunOrvan({Arg("-c"),
                      Arg("source \"$0\"; COMP_WORDS=(orvan \"$1\" --); COMP_CWORD=2; _orvan; "
                          "printf '%s\\n' \"${COMPREPLY[@]}\""),
                      bash, command},
                     {}, {}, Arg("bash"));
        EXPECT_EQ(Matches("^(--.*)$", Arg(run.output)), options) << qPrintable(command);
        QString section = zsh.section(Arg("        ") + command + Arg(")"), 1).section(Arg(";;"), 0, 0);
        section.replace(Arg("$common"), listed("common")).replace(Arg("$capacity"), listed("capacity"));
        EXPECT_EQ(Matches("(--[a-z-]+)(?=[\\[}])", section), options) << qPrintable(command);
        for (const QString& option : options)
            EXPECT_TRUE(manual.contains(QString(option).replace(Arg("-"), Arg("\\-")))) << qPrintable(option);
        EXPECT_TRUE(listed("commands").contains(Arg("'") + command + Arg(":"))) << qPrintable(command);
    }
}
