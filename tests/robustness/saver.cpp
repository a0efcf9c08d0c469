// Saves documents in a process of its own, for the tests:
//   saver loop FOLDER                    both versions of every document over and over, until it is killed
//   saver lock PROJECT                   holds the lock of a project, until it is killed
//   saver project FOLDER VERSION ROUNDS  a project, and reads it back each time; 1 when it reads anything
//   else
#include "frame/lednimbradata.h"
#include "project/projectlock.h"
#include "robustness/documents.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>

namespace {

void HoldLock(const QString& project)
{
    CProjectLock lock(project);
    std::puts(lock.Lock() ? "ready" : "taken");
    std::fflush(stdout);
    for (;;)
        QThread::sleep(1000);
}

void SaveForEver(const QString& folder)
{
    std::puts("ready");
    std::fflush(stdout);
    for (int version = 1;; version = 3 - version)
        for (int document = 0; document < kDocuments; ++document)
            SaveVersion(Document(document), folder, version);
}

bool SaveAndLoad(const QString& folder, int version, int rounds)
{
    bool same = true;
    for (int round = 0; round < rounds; ++round)
        same = same && SaveVersion(Document::Project, folder, version)
               && VersionOf(Document::Project, folder) == version;
    return same;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("lock"))
        HoldLock(arguments.value(2));
    LedNimbraData_Init();
    MakeProducts();
    if (arguments.value(1) == QLatin1String("loop"))
        SaveForEver(arguments.value(2));
    const bool same =
        arguments.value(1) == QLatin1String("project")
        && SaveAndLoad(arguments.value(2), arguments.value(3).toInt(), arguments.value(4).toInt());
    LedNimbraData_Release();
    return same ? 0 : 1;
}
