#include "outputfile.h"

#include "command.h"
#include "console.h"
#include "inputfile.h"
#include "privatefolder.h"

#include <orvantools/outputdevice.h>
#include <orvantools/wholefile.h>

#include <QBuffer>
#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace {

using Write = std::function<bool(QIODevice&)>;

constexpr QLatin1String kFormat("format");

QString WrongUsage(const QString& subject, const QString& what)
{
    Fail(StatusUsage, subject, what);
    return {};
}

/// "svg or png", with a prefix ".svg or .png".
QString Choice(QStringList forms, const QString& prefix = QString())
{
    const QString last = prefix + forms.takeLast();
    return forms.isEmpty()
               ? last
               : prefix + forms.join(QStringLiteral(", ") + prefix) + QStringLiteral(" or ") + last;
}

int FailOutput(const QString& file, const QString& why)
{
    return Fail(StatusFile, OutputName(file), why.isEmpty() ? QStringLiteral("cannot be written") : why);
}

/// A terminal gets text alone, without what it would obey.
int WriteToTerminal(const QString& file, const Write& write)
{
    QBuffer text;
    text.open(QIODevice::WriteOnly);
    if (!write(text))
        return FailOutput(file, text.errorString());
    Print(QString::fromUtf8(text.buffer().replace("\r\n", "\n")));
    return StatusDone;
}

int WriteToStandardOutput(const QString& file, const Write& write)
{
    if (isatty(STDOUT_FILENO) != 0)
        return WriteToTerminal(file, write);
    QFile output;
    if (!output.open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return FailOutput(file, output.errorString());
    OrvanTools::OutputDevice device(output, IsSignalWaiting);
    return write(device) && device.Finish() ? StatusDone : FailOutput(file, device.Why());
}

} // namespace

QString OutputName(const QString& argument)
{
    return IsStream(argument) ? QStringLiteral("standard output") : argument;
}

void AddFormatOption(QCommandLineParser& parser, const QStringList& forms)
{
    parser.addOption({kFormat, QStringLiteral("The form, when OUT is - (standard output)."),
                      forms.join(QLatin1Char('|'))});
}

QString OutputForm(const QCommandLineParser& parser, const QString& output, const QStringList& forms,
                   const QStringList& streamed)
{
    if (!IsStream(output)) {
        const QString form = QFileInfo(output).suffix().toLower();
        if (parser.isSet(kFormat))
            return WrongUsage(QString(), QStringLiteral("--format goes with - as the output"));
        if (!forms.contains(form))
            return WrongUsage(output,
                              QStringLiteral("the output ends in ") + Choice(forms, QStringLiteral(".")));
        return form;
    }
    const QString form = parser.value(kFormat);
    if (!streamed.contains(form))
        return WrongUsage(QString(),
                          QStringLiteral("with - as the output --format takes ") + Choice(streamed));
    if (form == QLatin1String("png") && isatty(STDOUT_FILENO) != 0)
        return WrongUsage(OutputName(output), QStringLiteral("is a terminal, which shows no picture"));
    return form;
}

int WriteOutput(const QString& file, const Write& write)
{
    if (IsStream(file))
        return WriteToStandardOutput(file, write);
    const SignalsHeld held; // what is written beside the file is gone or renamed afterwards
    QString why;
    if (OrvanTools::WriteWholeFile(file, write, &why, IsSignalWaiting))
        return StatusDone;
    return IsSignalWaiting() ? StatusFile : FailOutput(file, why);
}
