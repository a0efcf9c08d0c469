#include "senderoption.h"

#include "command.h"
#include "console.h"

#include <OrvanData/orvandata.h>

#include <QCommandLineParser>

void AddSenderOption(QCommandLineParser& parser, const QString& help)
{
    parser.addOption({QStringLiteral("sender"), help, QStringLiteral("N")});
}

bool ReadSenderOption(const QCommandLineParser& parser, int* number)
{
    *number = 0;
    if (!parser.isSet(QStringLiteral("sender")))
        return true;
    if (ParseNumber(parser.value(QStringLiteral("sender")), number) && *number > 0)
        return true;
    Fail(StatusUsage, QString(), QStringLiteral("--sender takes a number from 1"));
    return false;
}

int FindSender(const QString& file, int number, int* sender)
{
    const CProjectData& project = *GetProjectData();
    if (number > project.GetSenderCount())
        return Fail(StatusUsage, file, QStringLiteral("has no sender %1").arg(number));
    *sender = number > 0 ? number - 1 : project.GetCurSenderIndexForRtCnnt();
    return project.GetSender(*sender) ? StatusDone
                                      : Fail(StatusFile, file, QStringLiteral("has no sender to show"));
}
