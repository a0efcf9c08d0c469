// What the command orvan takes, beside `orvan info` of the same file; each is run as a process.
#include "figures.h"

#include <QFile>

#include <cmath>
#include <filesystem>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Words = std::vector<std::string>;

constexpr WallKind kSmaller = {32768, 160};
constexpr WallKind kLarger = {131072, 160};

/// Runs the command to its end, without its output. The result is its peak of memory in bytes.
double Orvan(const Words& words)
{
    std::vector<char*> arguments{const_cast<char*>("orvan")};
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    int status = 0;
    rusage used = {};
    if (posix_spawn(&child, ORVAN_COMMAND, &actions, nullptr, arguments.data(), environ) != 0
        || wait4(child, &status, 0, &used) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        qFatal("orvan %s failed", words.front().c_str());
    posix_spawn_file_actions_destroy(&actions);
    return static_cast<double>(used.ru_maxrss) * 1024;
}

double SecondsOf(const Words& words)
{
    return Seconds([&] { Orvan(words); });
}

std::string CopyOf(const std::string& file)
{
    return file + ".copy";
}

/// A canvas full of square cabinets, saved twice.
void MakeFile(const WallKind& kind, const std::string& file)
{
    const auto columns = std::lround(std::sqrt(kind.cabinets * 2));
    const std::string side = std::to_string(8192 / columns);
    Orvan({"new", file, "--force", "--ports", std::to_string(kind.ports), "--order", "4", "--canvas",
           "8192x4096", "--cabinet", side + "x" + side, "--grid",
           std::to_string(columns) + "x" + std::to_string(columns / 2)});
    std::filesystem::copy_file(file, CopyOf(file), std::filesystem::copy_options::overwrite_existing);
}

std::function<Pair(const WallKind&)> BesideInfo(const std::string& file, const Words& words)
{
    return [=](const WallKind& kind) {
        MakeFile(kind, file);
        const Words info{"info", file};
        return Interleaved([&] { return SecondsOf(info); }, [&] { return SecondsOf(words); });
    };
}

} // namespace

void CommandFigures(const QString& folder)
{
    const std::string file = QFile::encodeName(folder + QStringLiteral("/wall.prj")).toStdString();
    const std::pair<Figure, Words> figures[] = {
        {{"orvan check", "ms", 2, 2}, {"check", file}},
        {{"orvan render to PNG", "ms", 2.5, 2.5}, {"render", file, "-", "--format", "png"}},
        {{"orvan render to SVG", "ms", 2.5, 2.5}, {"render", file, "-", "--format", "svg"}},
        {{"orvan export to CSV", "ms", 1.5, 1.5}, {"export", file, "-", "--format", "csv"}},
        {{"orvan diff of equal files", "ms", 3, 3}, {"diff", file, CopyOf(file)}},
    };
    for (const WallKind& wall : {kSmaller, kLarger}) {
        OnWall({"orvan info --json --tiles, peak memory", "MB", 1.3, 1.3}, wall, [=](const WallKind& kind) {
            MakeFile(kind, file);
            return Pair{Orvan({"info", file}) / 1e6, Orvan({"info", "--json", "--tiles", file}) / 1e6};
        });
    }
    for (const auto& [figure, words] : figures) {
        for (const WallKind& wall : {kSmaller, kLarger})
            OnWall(figure, wall, BesideInfo(file, words));
    }
    OnWall({"orvan render --sheets", "ms", 6, 6}, kSmaller,
           BesideInfo(file, {"render", file, file + ".pdf", "--sheets"}));
}
