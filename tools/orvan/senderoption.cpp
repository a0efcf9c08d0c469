#include "senderoption.h"

#include "command.h"
#include "console.h"
#include "openproject.h"
#include "outputfile.h"
#include "samefile.h"

#include <OrvanData/orvandata.h>

#include <QCommandLineParser>

void AddSenderOption(QCommandLineParser& parser, const QString& help)
{
    parser.addOption({QStringLiteral("sender"), help, QStringLiteral("N")});
}

bool ReadOrdinal(const QCommandLineParser& parser, const char* option, int* number)
{
    *number = 0;
    const QString name = QLatin1String(option);
    if (!parser.isSet(name) || (ParseNumber(parser.value(name), number) && *number > 0))
        return true;
    Fail(StatusUsage, QString(), QStringLiteral("--%1 takes a number from 1").arg(name));
    return false;
}

int OpenSender(const QString& file, const QString& output, int number, int* sender)
{
    if (IsSameFile(file, output))
        return Fail(StatusUsage, OutputName(output), QStringLiteral("is the project itself"));
    if (!OpenProject(file))
        return StatusFile;
    const CProjectData& project = *GetProjectData();
    if (number > project.GetSenderCount())
        return Fail(StatusUsage, file, QStringLiteral("has no sender %1").arg(number));
    *sender = number > 0 ? number - 1 : project.GetCurSenderIndexForRtCnnt();
    return project.GetSender(*sender) ? StatusDone
                                      : Fail(StatusFile, file, QStringLiteral("has no sender to draw"));
}
