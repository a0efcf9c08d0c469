// Reads hostile files of a given size, each in a process of its own, and tells what that cost:
//   bench_hostile [MEGABYTES] [CASE...]    50 by default, and all cases
// Ends with 1 when one took longer than 5 seconds or more than 1 GiB.
#include "frame/lednimbradata.h"
#include "frame/runtimedata.h"
#include "layout/sender.h"
#include "project/projectdata.h"
#include "settings/configdata.h"
#include "settings/constantdata.h"
#include "support/privatehome.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zip.h>

namespace {

constexpr double kMostSeconds = 5;
constexpr long kMostMegabytes = 1024;

/// Pieces, each told its number, until the size is reached.
QByteArray Repeat(qint64 size, const std::function<QByteArray(int)>& piece)
{
    QByteArray text;
    text.reserve(static_cast<int>(size) + 4096);
    for (int i = 1; text.size() < size; ++i)
        text += piece(i);
    return text;
}

QByteArray Numbered(qint64 size, const QByteArray& stem, const QByteArray& rest)
{
    return Repeat(size, [&](int i) { return '<' + stem + QByteArray::number(i) + rest; });
}

QByteArray Document(const QByteArray& root, const QByteArray& content)
{
    return "<?xml version=\"1.0\"?><" + root + '>' + content + "</" + root + '>';
}

QByteArray Project(const QByteArray& content)
{
    return Document("LedSetting", content);
}

QByteArray Senders(const QByteArray& content, const QByteArray& attributes = {})
{
    return Project("<SenderLayout SenderCount=\"99999999\"><Sender_1 PortCount=\"160\" " + attributes + '>'
                   + content + "</Sender_1></SenderLayout>");
}

QByteArray Parameters(const QByteArray& content)
{
    return "<?xml version=\"1.0\"?><DeviceParams CheckValue=\"1\" bSpecifyIP=\"0\" ProcessorCount=\"9\">"
           + content + "</DeviceParams>";
}

QByteArray Port(const QByteArray& content)
{
    return "<Port_1>" + content + "</Port_1>";
}

QByteArray Tiles(const QByteArray& tiles)
{
    return "<TitleLayout TileCount=\"99999999\">" + tiles + "</TitleLayout>";
}

QByteArray Groups(const QByteArray& groups)
{
    return "<TitleGroupLayout GroupCount=\"99999999\">" + groups + "</TitleGroupLayout>";
}

/// Ids that all have the same hash: equal halves of two words take each other's place.
QByteArray CollidingId(int i)
{
    const QByteArray half = QByteArray::number(i, 16).rightJustified(8, '0');
    return '{' + half + "-0000-0000-" + half.left(4) + '-' + half.mid(4) + "00000000}";
}

QByteArray DeepGroups(qint64 size)
{
    return Repeat(size, [](int tree) {
        QByteArray name = "TileGroup_" + QByteArray::number(tree);
        QByteArray open;
        QByteArray close;
        for (int depth = 0; depth < 900; ++depth, name += "_1") {
            open += '<' + name + " GroupCount=\"1\">";
            close.prepend("</" + name + '>');
        }
        return open + close;
    });
}

QByteArray DeepNames(qint64 size)
{
    const QByteArray name(static_cast<int>(size / 2000), 'n');
    QByteArray open;
    QByteArray close;
    for (int depth = 0; depth < 1000; ++depth) {
        open += '<' + name + '>';
        close += "</" + name + '>';
    }
    return open + close;
}

struct Entry
{
    QByteArray name;
    QByteArray content;
};

QByteArray Archive(const std::vector<Entry>& entries)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.zip"));
    zip_t* archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE, nullptr);
    for (const Entry& entry : entries) {
        zip_source_t* source = zip_source_buffer(archive, entry.content.constData(),
                                                 static_cast<zip_uint64_t>(entry.content.size()), 0);
        const zip_int64_t index = zip_file_add(archive, entry.name.constData(), source, 0);
        zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_DEFLATE, 1);
    }
    zip_close(archive);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray ManyEntries(int count, const std::function<QByteArray(int)>& name)
{
    std::vector<Entry> entries;
    for (int i = 0; i < count; ++i)
        entries.push_back({name(i), "x"});
    return Archive(entries);
}

/// An archive that unpacks to all that is allowed, behind a document that names the files.
QByteArray Bomb()
{
    const QByteArray zeros(255 << 20, '\0');
    return Archive({{"project/new.prj", Project("<ParameterFile Count=\"3\"><File1 Name=\"a\"/><File2 "
                                                "Name=\"b\"/><File3 Name=\"c\"/></ParameterFile>")},
                    {"project/0.rcvbp", zeros},
                    {"project/1.rcvbp", zeros},
                    {"project/2.rcvbp", zeros}});
}

bool LoadProject(const QString& path)
{
    QString version;
    return GetProjectData()->LoadProjectFromFile(QFile::encodeName(path).constData(), version, nullptr);
}

bool UnpackTemporarily(const QString& path)
{
    return QFile::exists(CConstantData::GetTmpProjectDataPath(path));
}

bool ImportParameters(const QString& path)
{
    GetProjectData()->NewSender();
    GetRuntimeData()->GetImpExpPrepareInfo()->senders = {0};
    return GetProjectData()->ImportMutiProcessorParam(path, QUuid()) == 0;
}

bool ImportSender(const QString& path)
{
    return GetProjectData()->ImportSender(path, GetProjectData()->NewSender()->GetId(), false, true);
}

bool LoadInterfaceSettings(const QString& path)
{
    return CConfigData().Load_UI(path);
}

bool LoadCustomization(const QString& path)
{
    return CConfigData().LoadCustomizeConfig(path);
}

bool LoadAddresses(const QString& path)
{
    return CConfigData().LoadSpecifiedIP(path);
}

bool LoadSettings(const QString& path)
{
    return CConfigData().XmlLoad(path);
}

struct Case
{
    const char* name;
    std::function<QByteArray(qint64)> make; ///< told the size
    bool (*read)(const QString& path);
};

std::vector<Case> ProjectCases()
{
    return {
        {"elements", [](qint64 s) { return Project(Repeat(s, [](int) { return "<a/>"; })); }, LoadProject},
        {"tiles", [](qint64 s) { return Senders(Port(Tiles(Numbered(s, "Tile_", "/>")))); }, LoadProject},
        {"tiles of all ports",
         [](qint64 s) {
             return Senders(Repeat(s, [s](int i) {
                 const QByteArray name = "Port_" + QByteArray::number(i);
                 return '<' + name + '>' + Tiles(Numbered(s / 160, "Tile_", "/>")) + "</" + name + '>';
             }));
         },
         LoadProject},
        {"one tile again and again",
         [](qint64 s) { return Senders(Port(Tiles(Repeat(s, [](int) { return "<Tile_1/>"; })))); },
         LoadProject},
        {"tiles of many attributes",
         [](qint64 s) {
             const QByteArray many = Repeat(1200, [](int i) {
                 return ' ' + QByteArray(1, char('a' + i % 26)) + QByteArray::number(i) + "=\"\"";
             });
             return Senders(Port(Tiles(Numbered(s, "Tile_", many + "/>"))));
         },
         LoadProject},
        {"senders",
         [](qint64 s) {
             return Project("<SenderLayout SenderCount=\"99999999\">" + Numbered(s, "Sender_", "/>")
                            + "</SenderLayout>");
         },
         LoadProject},
        {"groups", [](qint64 s) { return Senders(Port(Groups(Numbered(s, "TileGroup_", "/>")))); },
         LoadProject},
        {"groups of one hash, every other one twice",
         [](qint64 s) {
             return Senders(Port(Groups(Repeat(s, [](int i) {
                 return "<TileGroup_" + QByteArray::number(i) + " GroupId=\""
                        + CollidingId(i / 4 * 4 + i % 4 / 2) + "\"/>";
             }))));
         },
         LoadProject},
        {"deep groups", [](qint64 s) { return Senders(Port(Groups(DeepGroups(s)))); }, LoadProject},
        {"deep names", [](qint64 s) { return Project(DeepNames(s)); }, LoadProject},
        {"an element of a million attributes",
         [](qint64 s) {
             return Project("<a" + Repeat(s, [](int i) { return " a" + QByteArray::number(i) + "=\"\""; })
                            + "/>");
         },
         LoadProject},
        {"a long attribute", [](qint64 s) { return Project("<a b=\"" + QByteArray(int(s), 'x') + "\"/>"); },
         LoadProject},
        {"a long comment", [](qint64 s) { return Project("<!--" + QByteArray(int(s), 'x') + "-->"); },
         LoadProject},
        {"a long text", [](qint64 s) { return Project(QByteArray(int(s), 'x')); }, LoadProject},
        {"a long name", [](qint64 s) { return Project('<' + QByteArray(int(s), 'x') + "/>"); }, LoadProject},
        {"entities",
         [](qint64 s) {
             return "<?xml version=\"1.0\"?><!DOCTYPE a [<!ENTITY b \"" + QByteArray(int(s), 'x')
                    + "\">]><a>&b;&b;</a>";
         },
         LoadProject},
        {"sender groups",
         [](qint64 s) {
             return Project("<SenderTreeGroup SenderGroupCount=\"99999999\">"
                            + Numbered(s, "SenderGroup_", "/>") + "</SenderTreeGroup>");
         },
         LoadProject},
        {"parameter files of one name",
         [](qint64 s) {
             return Project("<ParameterFile Count=\"99999999\">" + Numbered(s, "File", " Name=\"a\"/>")
                            + "</ParameterFile>");
         },
         LoadProject},
        {"a sender's layout",
         [](qint64 s) {
             return Document("SenderLayout", "<SenderLayout PortCount=\"4\">"
                                                 + Port(Tiles(Numbered(s, "Tile_", "/>")))
                                                 + "</SenderLayout>");
         },
         ImportSender},
    };
}

std::vector<Case> OtherCases()
{
    return {
        {"archive: bomb", [](qint64) { return Bomb(); }, LoadProject},
        {"archive: document of 255 MiB",
         [](qint64) {
             return Archive(
                 {{"project/new.prj",
                   Senders(Port(Tiles(Repeat(qint64(255) << 20, [](int) { return "<Tile_1/>"; }))))}});
         },
         LoadProject},
        {"archive: entries",
         [](qint64) {
             return ManyEntries(65535, [](int i) { return "project/" + QByteArray::number(i) + ".rcvbp"; });
         },
         LoadProject},
        {"archive: more entries than allowed",
         [](qint64 s) {
             return ManyEntries(int(s / 120), [](int i) { return "project/" + QByteArray::number(i); });
         },
         LoadProject},
        {"archive: folders",
         [](qint64) {
             return ManyEntries(20000, [](int i) {
                 return "project/" + QByteArray("a/").repeated(55) + QByteArray::number(i) + "/x";
             });
         },
         UnpackTemporarily},
        {"archive: bomb of any kind", [](qint64) { return Bomb(); }, UnpackTemporarily},
        {"parameters: elements", [](qint64 s) { return Parameters(Repeat(s, [](int) { return "<a/>"; })); },
         ImportParameters},
        {"parameters: most elements allowed",
         [](qint64) { return Parameters(QByteArray("<a b=\"\"/>").repeated(262000)); }, ImportParameters},
        {"parameters: most texts allowed",
         [](qint64 s) {
             return Document("DeviceParams",
                             Repeat(s, [](int) { return "<a>" + QByteArray(100, 'x') + "</a>"; }));
         },
         ImportParameters},
        {"parameters: comments",
         [](qint64 s) { return Parameters(Repeat(s, [](int) { return "<!---->"; })); }, ImportParameters},
        {"parameters: processors",
         [](qint64) {
             return "<?xml version=\"1.0\"?><DeviceParams CheckValue=\"1\" ProcessorCount=\"99999999\">"
                    + QByteArray("<Processor_1/>").repeated(500000) + "</DeviceParams>";
         },
         ImportParameters},
        {"settings: elements",
         [](qint64 s) { return Document("LedControlConfig", Repeat(s, [](int) { return "<a/>"; })); },
         LoadSettings},
        {"windows: keys",
         [](qint64 s) {
             return Repeat(qMin(s, qint64(4) << 20) - 64,
                           [](int i) { return 'k' + QByteArray::number(i) + "=1\n"; });
         },
         LoadInterfaceSettings},
        {"windows: a long line",
         [](qint64 s) { return "a=" + QByteArray(int(qMin(s, qint64(4) << 20)) - 64, ','); },
         LoadInterfaceSettings},
        {"windows: at signs",
         [](qint64 s) { return "a=" + QByteArray("\\@").repeated(int(qMin(s, qint64(4) << 20) / 2) - 64); },
         LoadInterfaceSettings},
        {"customer: arrays",
         [](qint64 s) {
             return "{\"a\":[" + QByteArray("[],").repeated(int(qMin(s, qint64(16) << 20) / 3) - 64) + "1]}";
         },
         LoadCustomization},
        {"addresses",
         [](qint64 s) {
             return Repeat(qMin(s, qint64(1) << 20) - 64, [](int i) {
                 return "10.0." + QByteArray::number(i / 250 % 250) + '.' + QByteArray::number(i % 250)
                        + '\n';
             });
         },
         LoadAddresses},
    };
}

void Make(const Case& hostile, const QString& path, qint64 size)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(hostile.make(size));
}

/// Reads the file and tells how it went.
void Read(const Case& hostile, const QString& path)
{
    LedNimbraData_Init();
    QElapsedTimer timer;
    timer.start();
    const bool read = hostile.read(path);
    std::printf(" %s %s\n", read ? "read" : "refused",
                GetProjectData()->GetLastFileError().left(60).toUtf8().constData());
    LedNimbraData_Release();
}

double Seconds(const timeval& time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

/// Runs a part of the work in a process of its own, so that its memory and time can be told.
rusage Run(const char* part, const char* name, const QString& path, qint64 size, bool* good)
{
    const QByteArray self = QFile::encodeName(QCoreApplication::applicationFilePath());
    const QByteArray file = QFile::encodeName(path);
    const QByteArray bytes = QByteArray::number(size);
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        execl(self.constData(), self.constData(), part, name, file.constData(), bytes.constData(),
              static_cast<char*>(nullptr));
        _exit(127);
    }
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    *good = *good && status == 0;
    return usage;
}

bool Measure(const PrivateHome& home, const Case& hostile, qint64 size)
{
    const QString path = home.Path() + QStringLiteral("/hostile");
    bool good = true;
    Run("--make", hostile.name, path, size, &good);
    QElapsedTimer timer;
    timer.start();
    const rusage usage = Run("--read", hostile.name, path, size, &good);
    // Of the processor: what else runs at the time is not this file's cost.
    const double seconds = Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
    const long megabytes = usage.ru_maxrss / 1024;
    good = good && seconds <= kMostSeconds && megabytes <= kMostMegabytes;
    std::printf("%-45s %6.2f s (%6.2f s by the clock) %6ld MiB%s\n", hostile.name, seconds,
                double(timer.elapsed()) / 1000, megabytes, good ? "" : "   TOO MUCH");
    QDir(home.Path()).removeRecursively(); // what it left; not part of its cost
    QDir().mkpath(home.Path() + QStringLiteral("/tmp"));
    return good;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString part = arguments.value(1);
    const bool isChild = part.startsWith(QLatin1String("--"));
    const auto home = isChild ? nullptr : std::make_unique<const PrivateHome>();
    std::vector<Case> cases = ProjectCases();
    for (Case& other : OtherCases())
        cases.push_back(std::move(other));

    bool good = true;
    for (const Case& hostile : cases) {
        const QString name = QString::fromLatin1(hostile.name);
        const bool chosen = arguments.size() < 3 || arguments.mid(2).contains(name);
        if (!chosen)
            continue;
        if (part == QLatin1String("--make"))
            Make(hostile, arguments.value(3), arguments.value(4).toLongLong());
        else if (part == QLatin1String("--read"))
            Read(hostile, arguments.value(3));
        else
            good = Measure(*home, hostile, (part.isEmpty() ? 50 : part.toInt()) * qint64(1000000)) && good;
    }
    return good ? 0 : 1;
}
