#include "fuzzing.h"

#include "frame/lednimbradata.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

/// The folders of a run. Every input writes files, so a temporary folder in memory helps.
class Home
{
public:
    Home() : m_folder(QDir::tempPath() + QStringLiteral("/orvan-fuzz XXXXXX"))
    {
        const QByteArray path = m_folder.path().toUtf8();
        qputenv("HOME", path);
        qputenv("XDG_CONFIG_HOME", path + "/config");
        qputenv("XDG_DATA_HOME", path + "/data");
        qputenv("XDG_CACHE_HOME", path + "/cache");
        qputenv("TMPDIR", path + "/tmp");
        QDir().mkpath(m_folder.path() + QStringLiteral("/tmp"));
        QDir().mkpath(m_folder.path() + QStringLiteral("/Documents"));
    }

    QString Path() const { return m_folder.path() + QLatin1Char('/'); }

private:
    QTemporaryDir m_folder;
};

Home& TheHome()
{
    static Home home;
    return home;
}

void Empty(const QString& folder)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("LC_ALL", "C.UTF-8");
    TheHome();
    // Without a display: the messages of the library go nowhere, and no platform plugin leaks.
    static QCoreApplication application(*argc, *argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    LedNimbraData_Init();
    std::atexit(LedNimbraData_Release);
    return 0;
}

QString FreshFolder()
{
    // A new name each time: QSettings remembers files by their names and times.
    static int round = 0;
    static QString folder;
    if (!folder.isEmpty())
        QDir(folder).removeRecursively();
    folder = TheHome().Path() + QStringLiteral("input%1/").arg(++round);
    QDir().mkpath(folder);
    Empty(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return folder;
}

QString WriteInput(const QString& folder, const char* name, const QByteArray& content)
{
    const QString path = folder + QLatin1String(name);
    QFile file(path);
    Demand(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "the input is written");
    return path;
}

void Demand(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}
