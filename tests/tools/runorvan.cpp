#include "tools/runorvan.h"

#include "support/testfolder.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QProcess>

QJsonObject OrvanRun::Json() const
{
    return QJsonDocument::fromJson(output).object();
}

OrvanRun RunOrvan(const QStringList& arguments, const QString& folder, const QStringList& environment)
{
    QProcess process;
    process.setWorkingDirectory(folder.isEmpty() ? QDir::currentPath() : folder);
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    for (const QString& entry : environment)
        all.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    process.setProcessEnvironment(all);
    process.start(QStringLiteral(ORVAN_COMMAND), arguments);
    OrvanRun run;
    if (process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = process.readAllStandardOutput();
    run.errors = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QMap<QString, QByteArray> Snapshot(const QString& folder)
{
    QMap<QString, QByteArray> content;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        content.insert(path, entries.fileInfo().isFile() ? ReadFile(path) : QByteArray("folder"));
    }
    return content;
}
