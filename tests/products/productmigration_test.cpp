#include "products/productdirectoryset.h"

#include "settings/constantdata.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QDir>

namespace {

/// An older product folder beside the current one, both empty at the start.
struct ProductMigrationTest : testing::Test
{
    ProductMigrationTest() : root(CProductDirectorySet::GetRootDir()), old(root.chopped(1) + "2/"_s)
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
    const QByteArray first = DigestOf(WriteFile(old + "builtin/one.rcvp"_s, "one"));
    const QByteArray second = DigestOf(WriteFile(old + "builtin/two.rcvbp"_s, "two"));
    const QByteArray beyond = DigestOf(WriteFile(old + "own/deep/beyond.rcvp"_s, "beyond"));
    WriteFile(old + "own/one.txt"_s, "one"); // listed content, but no product
    WriteFile(old + ":屏.rcvp"_s, "mine");
    WriteFile(old + "ProductList.ini"_s, "[ProductListInfo]\nProduct1=" + first
                                             + "\nProduct2=short\nProduct3=" + second.toUpper()
                                             + "x\nProduct4=NoFile\nProduct5=" + beyond + "\n");

    CProductDirectorySet::UpdateProductDir();
    QStringList files;
    CProductDirectorySet::GetFileInDir(root, files);
    for (QString& file : files)
        file = file.mid(root.size());
    EXPECT_EQ(files, QStringList({":屏.rcvp"_s, "own/deep/beyond.rcvp"_s, "own/one.txt"_s}));
    EXPECT_EQ(ReadFile(root + "own/deep/beyond.rcvp"_s), "beyond");
    EXPECT_FALSE(QDir(old).exists());
}

TEST_F(ProductMigrationTest, NothingIsOverwrittenAndLinksStay)
{
    TestFolder outside;
    const QString far = outside.Write("far/far.rcvp"_s, "far");
    const QString taken = WriteFile(root + "taken.rcvp"_s, "new");
    WriteFile(old + "taken.rcvp"_s, "old");
    WriteFile(old + "linked/a.rcvp"_s, "a");
    WriteFile(old + "dangling.rcvp"_s, "d");
    ASSERT_TRUE(QFile::link(outside.Path("far"_s), root + "linked"_s));
    ASSERT_TRUE(QFile::link(outside.Path("gone"_s), root + "dangling.rcvp"_s));
    ASSERT_TRUE(QFile::link(outside.Path("far"_s), old + "folder"_s));
    WriteFile(old + "ProductList.ini"_s, "[ProductListInfo]\nProduct1=" + DigestOf(far) + "\n");

    CProductDirectorySet::UpdateProductDir();
    EXPECT_EQ(ReadFile(taken), "new");
    EXPECT_EQ(ReadFile(old + "taken.rcvp"_s), "old");
    EXPECT_EQ(ReadFile(old + "linked/a.rcvp"_s), "a");
    EXPECT_EQ(ReadFile(old + "dangling.rcvp"_s), "d");
    EXPECT_EQ(ReadFile(far), "far");
    EXPECT_TRUE(QFileInfo(root + "dangling.rcvp"_s).isSymLink());
    EXPECT_EQ(QDir(outside.Path("far"_s)).entryList(QDir::Files).size(), 1);
}

TEST_F(ProductMigrationTest, ListThatCannotBeReadWholeStaysAndNothingMoves)
{
    const QByteArray product = "[ProductListInfo]\nProduct1=" + DigestOf(WriteFile(old + "a.rcvp"_s, "a"));
    for (const QByteArray& end : {QByteArray("\n").repeated(4 << 20), QByteArray("\nno value\n"),
                                  QByteArray("\nProduct2=@Variant(\\0\\0\\0\\t\\0\\0\\0\\0)\n")}) {
        WriteFile(old + "ProductList.ini"_s, product + end);
        CProductDirectorySet::UpdateProductDir();
        EXPECT_EQ(QDir(old).entryList(QDir::Files).size(), 2);
        EXPECT_TRUE(QDir(root).isEmpty());
    }
}

TEST_F(ProductMigrationTest, WithoutAListOfItsOwnAllFilesAreTheUsers)
{
    TestFolder outside;
    for (const bool linked : {false, true}) {
        const QByteArray digest = DigestOf(WriteFile(old + "a.rcvp"_s, "a"));
        const QString list = outside.Write("list"_s, "[ProductListInfo]\nProduct1=" + digest + '\n');
        ASSERT_TRUE(!linked || QFile::link(list, old + "ProductList.ini"_s));
        CProductDirectorySet::UpdateProductDir();
        EXPECT_TRUE(QFile::remove(root + "a.rcvp"_s)) << linked;
        EXPECT_TRUE(QFile::exists(list));
    }
}

TEST_F(ProductMigrationTest, WithoutAnOlderFolderNothingHappens)
{
    QDir(old).removeRecursively();
    CProductDirectorySet::UpdateProductDir();
    EXPECT_FALSE(QDir(root).exists());

    TestFolder outside;
    const QString far = outside.Write("far.rcvp"_s, "far");
    ASSERT_TRUE(QFile::link(outside.Path(), old.chopped(1)));
    CProductDirectorySet::UpdateProductDir();
    EXPECT_TRUE(QFile::exists(far));
    EXPECT_TRUE(QFile::remove(old.chopped(1)));
}
