#include "fuzzing.h"

#include "frame/lednimbradata.h"
#include "support/privatehome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>

namespace {

const PrivateHome& Home()
{
    static const PrivateHome home; // every input writes files, so a temporary folder in memory helps
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
    Home();
    // Without a display: the messages of the library go nowhere, and no platform plugin leaks.
    static QCoreApplication application(*argc, *argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    LedNimbraData_Init();
    std::atexit(LedNimbraData_Release);
    return 0;
}

QString FreshFolder()
{
    // A new name each time, so that nothing is left of the input before.
    static int round = 0;
    static QString folder;
    if (!folder.isEmpty())
        QDir(folder).removeRecursively();
    folder = Home().Path() + QStringLiteral("/input%1/").arg(++round);
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
