#include "tools/runorvan.h"

#include "support/testfolder.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QProcess>

QString Arg(const char* text)
{
    return QString::fromUtf8(text);
}

QStringList Args(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list.append(Arg(text));
    return list;
}

QJsonObject OrvanRun::Json() const
{
    return QJsonDocument::fromJson(output).object();
}

QProcessEnvironment EnvironmentWith(const QStringList& entries)
{
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    for (const QString& entry : entries)
        all.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    return all;
}

OrvanRun RunOrvan(const QStringList& arguments, const QString& folder, const QStringList& environment,
                  const QString& program)
{
    QProcess process;
    process.setWorkingDirectory(folder.isEmpty() ? QDir::currentPath() : folder);
    process.setProcessEnvironment(EnvironmentWith(environment));
    process.start(program.isEmpty() ? QStringLiteral(ORVAN_COMMAND) : program, arguments);
    OrvanRun run;
    if (process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = process.readAllStandardOutput();
    run.errors = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QJsonObject ReadJson(const QString& path)
{
    return QJsonDocument::fromJson(ReadFile(path)).object();
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
