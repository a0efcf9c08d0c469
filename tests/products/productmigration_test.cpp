#include "products/productdirectoryset.h"

#include "settings/constantdata.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QDir>

namespace {

/// An older product folder beside the current one, both empty at the start.
struct ProductMigrationTest : testing::Test
{
    ProductMigrationTest()
        : root(CProductDirectorySet::GetRootDir()), old(root.chopped(1) + QStringLiteral("2/"))
    {
        QDir(root).removeRecursively();
        QDir(old).removeRecursively();
        QDir().mkpath(old);
    }

    QString root;
    QString old;
};

QByteArray DigestOf(const QString& path)
{
    return CConstantData::GetMD5FromFile(path).ToString().toLatin1();
}

} // namespace

TEST_F(ProductMigrationTest, ListedProductsGoAndTheUsersOwnMove)
{
    const QByteArray first = DigestOf(WriteFile(old + QStringLiteral("builtin/one.rcvp"), "one"));
    const QByteArray second = DigestOf(WriteFile(old + QStringLiteral("builtin/two.rcvbp"), "two"));
    const QByteArray beyond = DigestOf(WriteFile(old + QStringLiteral("own/deep/beyond.rcvp"), "beyond"));
    WriteFile(old + QStringLiteral("own/one.txt"), "one"); // listed content, but no product
    WriteFile(old + QStringLiteral(":屏.rcvp"), "mine");
    WriteFile(old + QStringLiteral("ProductList.ini"), "[ProductListInfo]\nProduct1=" + first
                                                           + "\nProduct2=short\nProduct3=" + second.toUpper()
                                                           + "x\nProduct4=NoFile\nProduct5=" + beyond + "\n");

    CProductDirectorySet::UpdateProductDir();
    QStringList files;
    CProductDirectorySet::GetFileInDir(root, files);
    for (QString& file : files)
        file = file.mid(root.size());
    EXPECT_EQ(files, QStringList({QStringLiteral(":屏.rcvp"), QStringLiteral("own/deep/beyond.rcvp"),
                                  QStringLiteral("own/one.txt")}));
    EXPECT_EQ(ReadFile(root + QStringLiteral("own/deep/beyond.rcvp")), "beyond");
    EXPECT_FALSE(QDir(old).exists());
}

TEST_F(ProductMigrationTest, NothingIsOverwrittenAndLinksStay)
{
    TestFolder outside;
    const QString far = outside.Write(QStringLiteral("far/far.rcvp"), "far");
    const QString taken = WriteFile(root + QStringLiteral("taken.rcvp"), "new");
    WriteFile(old + QStringLiteral("taken.rcvp"), "old");
    WriteFile(old + QStringLiteral("linked/a.rcvp"), "a");
    WriteFile(old + QStringLiteral("dangling.rcvp"), "d");
    ASSERT_TRUE(QFile::link(outside.Path(QStringLiteral("far")), root + QStringLiteral("linked")));
    ASSERT_TRUE(QFile::link(outside.Path(QStringLiteral("gone")), root + QStringLiteral("dangling.rcvp")));
    ASSERT_TRUE(QFile::link(outside.Path(QStringLiteral("far")), old + QStringLiteral("folder")));
    WriteFile(old + QStringLiteral("ProductList.ini"), "[ProductListInfo]\nProduct1=" + DigestOf(far) + "\n");

    CProductDirectorySet::UpdateProductDir();
    EXPECT_EQ(ReadFile(taken), "new");
    EXPECT_EQ(ReadFile(old + QStringLiteral("taken.rcvp")), "old");
    EXPECT_EQ(ReadFile(old + QStringLiteral("linked/a.rcvp")), "a");
    EXPECT_EQ(ReadFile(old + QStringLiteral("dangling.rcvp")), "d");
    EXPECT_EQ(ReadFile(far), "far");
    EXPECT_TRUE(QFileInfo(root + QStringLiteral("dangling.rcvp")).isSymLink());
    EXPECT_EQ(QDir(outside.Path(QStringLiteral("far"))).entryList(QDir::Files).size(), 1);
}

TEST_F(ProductMigrationTest, ListThatCannotBeReadWholeStaysAndNothingMoves)
{
    const QByteArray product =
        "[ProductListInfo]\nProduct1=" + DigestOf(WriteFile(old + QStringLiteral("a.rcvp"), "a"));
    for (const QByteArray& end : {QByteArray("\n").repeated(4 << 20), QByteArray("\nno value\n")}) {
        WriteFile(old + QStringLiteral("ProductList.ini"), product + end);
        CProductDirectorySet::UpdateProductDir();
        EXPECT_EQ(QDir(old).entryList(QDir::Files).size(), 2);
        EXPECT_TRUE(QDir(root).isEmpty());
    }
}

TEST_F(ProductMigrationTest, WithoutAnOlderFolderNothingHappens)
{
    QDir(old).removeRecursively();
    CProductDirectorySet::UpdateProductDir();
    EXPECT_FALSE(QDir(root).exists());

    TestFolder outside;
    const QString far = outside.Write(QStringLiteral("far.rcvp"), "far");
    ASSERT_TRUE(QFile::link(outside.Path(), old.chopped(1)));
    CProductDirectorySet::UpdateProductDir();
    EXPECT_TRUE(QFile::exists(far));
    EXPECT_TRUE(QFile::remove(old.chopped(1)));
}
