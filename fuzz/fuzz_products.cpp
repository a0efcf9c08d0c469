// A product folder: each line of the input is a file, "path=content", a folder, "path/", or a link,
// "path>target". Files below "old/" are moved into the current folder before it is scanned.
#include "fuzzing.h"
#include "products/productdirectoryset.h"
#include "products/productmigration.h"

#include <QDir>
#include <QFile>

namespace {

constexpr int kMaxLevels = 16;
constexpr int kMaxLines = 64;

/// The path below the folder, as far as it can be one.
QString Below(const QString& folder, const QByteArray& path)
{
    QStringList kept;
    for (const QByteArray& name : path.left(1024).split('/'))
        if (!name.isEmpty() && name != "." && name != ".." && name.size() <= 128 && kept.size() < kMaxLevels)
            kept.append(QFile::decodeName(name));
    return folder + kept.join(QLatin1Char('/'));
}

void Make(const QString& folder, const QByteArray& line)
{
    const int content = line.indexOf('=');
    const int link = line.indexOf('>');
    const QString path = Below(folder, line.left(content >= 0 ? content : link));
    if (content < 0 && link < 0) {
        QDir().mkpath(path);
        return;
    }
    QDir().mkpath(path.left(path.lastIndexOf(QLatin1Char('/'))));
    QFile file(path);
    if (content < 0)
        QFile::link(Below(folder, line.mid(link + 1)), path);
    else if (file.open(QIODevice::WriteOnly))
        file.write(line.mid(content + 1).replace("\\n", "\n"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString folder = FreshFolder();
    const QString current = folder + QStringLiteral("new/");
    QDir().mkpath(current);
    for (const QByteArray& line : content.split('\n').mid(0, kMaxLines))
        if (!line.isEmpty())
            Make(folder, line);

    MigrateProductFolder(folder + QStringLiteral("old/"), current);
    CProductDirectorySet products;
    unsigned int menuId = 0;
    const int count = products.LoadProductInfoFolderEx(current, &products, menuId);
    QStringList names;
    CProductDirectorySet::GetAllProductName(names, &products);
    Demand(names.size() == count, "every product is counted once");
    CProductDirectorySet::DeleteEmptySubDir(current);

    CProductDirectorySet again;
    Demand(again.LoadProductInfoFolderEx(current, &again, menuId) == count, "a second scan finds the same");
    return 0;
}
