#include "command.h"
#include "console.h"
#include "openproject.h"
#include "samefile.h"

#include <OrvanData/orvandata.h>
#include <orvantools/newproject.h>

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

using OrvanTools::NewProject;

void AddOptions(QCommandLineParser& parser)
{
    const auto option = [&parser](const char* name, const char* help, const char* value,
                                  const char* standard = "") {
        QString text = QLatin1String(help);
        if (*standard)
            text += QStringLiteral(", %1 by default").arg(QLatin1String(standard));
        parser.addOption(
            {QLatin1String(name), text + QLatin1Char('.'), QLatin1String(value), QLatin1String(standard)});
    };
    option("product", "Receiver parameter file of the cabinets; several alternate by column", "FILE");
    option("cabinet", "Pixels of a cabinet", "WxH", "128x128");
    option("grid", "Columns and rows of the block", "COLUMNSxROWS", "4x3");
    option("ports", "Ports that share the block in column strips", "N", "4");
    option("order", "Number each port in this pattern: 0 to 3 by rows, 4 to 7 by columns; else none is",
           "0..7");
    option("canvas", "Pixels of the canvas", "WxH", "1920x1080");
    option("name", "Name of the sender and of the project on the printed form", "TEXT");
    parser.addOption({QStringLiteral("force"), QStringLiteral("Replace an existing file.")});
}

/// The sizes and numbers of the options. Empty when all can be read, else which one cannot.
QString ReadOptions(const QCommandLineParser& parser, NewProject* wanted)
{
    const auto size = [&parser](const char* name, QSize* value) {
        *value = ParseSize(parser.value(QLatin1String(name)));
        return value->isValid();
    };
    const QString order = parser.value(QStringLiteral("order"));
    wanted->name = parser.value(QStringLiteral("name"));
    if (!size("cabinet", &wanted->cabinet))
        return QStringLiteral("--cabinet takes a size such as 128x128");
    if (!size("grid", &wanted->grid))
        return QStringLiteral("--grid takes columns and rows such as 4x3");
    if (!size("canvas", &wanted->canvas))
        return QStringLiteral("--canvas takes a size such as 1920x1080");
    if (!ParseNumber(parser.value(QStringLiteral("ports")), &wanted->ports))
        return QStringLiteral("--ports takes a number");
    if (parser.isSet(QStringLiteral("order")) && !ParseNumber(order, &wanted->order))
        return QStringLiteral("--order takes a number from 0 to 7");
    return OrvanTools::WhyNotBuildable(*wanted);
}

/// A path in the product folder that is free, with a suffix that the library looks for.
QString FreeProductPath(const QString& file)
{
    const QFileInfo info(file);
    const bool known = info.suffix() == QLatin1String("rcvp") || info.suffix() == QLatin1String("rcvbp");
    const QString base = CProductDirectorySet::GetRootDir() + info.completeBaseName();
    const QString suffix = QLatin1Char('.') + (known ? info.suffix() : QStringLiteral("rcvbp"));
    QString path = base + suffix;
    for (int i = 2; QFileInfo::exists(path); ++i)
        path = base + QLatin1Char('_') + QString::number(i) + suffix;
    return path;
}

/// Adds a parameter file to the product library, unless it is there. No type when that fails.
SMD5 TakeProduct(const QString& file)
{
    CProductDirectorySet& library = *GetRuntimeData()->GetProductDirectorySet();
    if (!QFileInfo(file).isFile())
        return {};
    const SMD5 type = CConstantData::GetMD5FromFile(file);
    if (type.IsNull() || library.FindProductFromGuid(type))
        return type;
    if (!QFile::copy(file, FreeProductPath(file)))
        return {};
    library.LoadProductInfo();
    return type;
}

int Run(const Invocation& invocation)
{
    const QCommandLineParser& parser = invocation.parser;
    const QString file = invocation.files.first();
    NewProject wanted;
    const QString wrong = ReadOptions(parser, &wanted);
    if (!wrong.isEmpty())
        return Fail(StatusUsage, QString(), wrong);
    const QStringList products = parser.values(QStringLiteral("product"));
    for (const QString& product : products) {
        if (IsSameFile(product, file))
            return Fail(StatusUsage, file, QStringLiteral("is a product of the project"));
    }
    const QFileInfo info(file);
    if (info.isDir() || !QFileInfo(info.absolutePath()).isDir())
        return Fail(StatusFile, file,
                    info.isDir() ? QStringLiteral("is a folder")
                                 : QStringLiteral("its folder does not exist"));
    if ((info.exists() || info.isSymLink()) && !parser.isSet(QStringLiteral("force")))
        return Fail(StatusFile, file, QStringLiteral("exists; --force replaces it"));

    GetRuntimeData()->GetProductDirectorySet()->LoadProductInfo();
    for (const QString& product : products) {
        wanted.types.append(TakeProduct(product));
        if (wanted.types.last().IsNull())
            return Fail(StatusFile, product, QStringLiteral("cannot be read"));
    }
    OrvanTools::BuildProject(*GetProjectData(), wanted);
    return SaveProject(file) ? StatusDone : StatusFile;
}

} // namespace

const Command kNewCommand = {"new",      "OUT.prj", "The project archive to write.",
                             1,          1,         "Make a project from a cabinet block.",
                             AddOptions, Run,       false,
                             false};
