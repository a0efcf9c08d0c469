#include "command.h"
#include "console.h"
#include "productfiles.h"

#include <OrvanData/orvandata.h>
#include <orvantools/printable.h>

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>

namespace {

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
}

/// The scan deletes doubles, so it works on a copy. False at the first file that fails, with its path.
bool CopyProducts(const QString& from, const QString& to, QString* failed)
{
    return ForEachProductFile(from, [&](const QString& source) {
        const QString target = to + QDir(from).relativeFilePath(source);
        *failed = source;
        return QDir().mkpath(QFileInfo(target).path()) && QFile::copy(source, target);
    });
}

/// The product in the folder itself instead of the copy.
QJsonObject Describe(const CProduct& product, const QString& copy, const QString& folder)
{
    const QString path = QDir(copy).relativeFilePath(product.GetParamPath());
    const QString below = QFileInfo(path).path();
    return {{QStringLiteral("menuId"), static_cast<double>(product.GetMenuID())},
            {QStringLiteral("name"), product.GetName()},
            {QStringLiteral("path"), QDir(folder).absoluteFilePath(path)},
            {QStringLiteral("type"), product.GetMd5().ToString()},
            {QStringLiteral("folder"), below == QLatin1String(".") ? QString() : below}};
}

void PrintTable(const QJsonArray& products)
{
    for (const QJsonValue& value : products) {
        const QJsonObject product = value.toObject();
        const QString folder = product[QStringLiteral("folder")].toString();
        Print(product[QStringLiteral("type")].toString() + QStringLiteral("  ")
              + OrvanTools::Printable((folder.isEmpty() ? QString() : folder + QLatin1Char('/'))
                                      + product[QStringLiteral("name")].toString())
              + QLatin1Char('\n'));
    }
    Print(QStringLiteral("%1 %2\n")
              .arg(products.size())
              .arg(products.size() == 1 ? QStringLiteral("product") : QStringLiteral("products")));
}

int Run(const Invocation& invocation)
{
    const bool given = !invocation.files.isEmpty();
    const QFileInfo info(given ? invocation.files.first() : invocation.ProductFolder());
    if (given && !(info.isDir() && info.isReadable()))
        return Fail(StatusFile, info.filePath(), QStringLiteral("is no folder that can be read"));
    const QString folder = info.absoluteFilePath();
    const QString copy = CProductDirectorySet::GetRootDir();
    QString failed;
    if (!CopyProducts(folder, copy, &failed))
        return Fail(StatusFile, failed, QStringLiteral("cannot be read"));

    CProductDirectorySet& library = *GetRuntimeData()->GetProductDirectorySet();
    library.LoadProductInfo();
    QJsonArray products;
    library.FindProduct([&](CProduct& product) {
        products.append(Describe(product, copy, folder));
        return false;
    });
    if (invocation.parser.isSet(QStringLiteral("json")))
        PrintJson({{QStringLiteral("products"), products}});
    else
        PrintTable(products);
    return StatusDone;
}

} // namespace

const Command kProductsCommand = {"products", "[DIR]", "The product folder, the user's own by default.",
                                  0,          1,       "What a product folder holds.",
                                  AddOptions, Run,     false,
                                  true};
