#include "products/productdirectoryset.h"

#include "settings/constantdata.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QDir>

namespace {

/// A library whose product folder, in the test run's own documents folder, begins empty.
struct ProductDirectorySetTest : testing::Test
{
    ProductDirectorySetTest() : root(CProductDirectorySet::GetRootDir())
    {
        QDir(root).removeRecursively();
        CProductDirectorySet::GetRootDir();
    }

    QString Write(const char* name, const QByteArray& content) const
    {
        return WriteFile(root + QString::fromUtf8(name), content);
    }

    QString root;
    CProductDirectorySet library;
};

} // namespace

TEST_F(ProductDirectorySetTest, ProductsAreNumberedInOrderOfTheListing)
{
    Write("b.rcvp", "b");
    Write("a/z.rcvbp", "z");
    Write("a/.hidden.rcvp", "h");
    Write("c.rcvbp", "c");
    Write("x.RCVP", "x");
    Write("x.rcvpx", "y");
    QDir().mkpath(root + "empty"_s);
    library.SetExpanded(true);

    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(library.LoadProductInfo(), 4);
        EXPECT_EQ(library.GetSubDirs().at(0)->IsExpanded(), round == 1)
            << "folders stay expanded over a rescan";
        library.GetSubDirs().at(0)->SetExpanded(true);
        EXPECT_EQ(library.FindProductFromFileName(".hidden.rcvp"_s)->GetMenuID(), 8192U);
        EXPECT_EQ(library.FindProductFromFileName("z.rcvbp"_s)->GetMenuID(), 8193U);
        EXPECT_EQ(library.FindProductFromFileName("b.rcvp"_s)->GetMenuID(), 8194U);
        EXPECT_EQ(library.FindProductFromFileName("c.rcvbp"_s)->GetMenuID(), 8195U);
        EXPECT_EQ(library.SnatchMenuID(), 8196U);
        EXPECT_EQ(library.GetScannedFolder(), root);
        EXPECT_TRUE(library.GetFolderPath() == root && library.IsExpanded());
    }
    int position = -1;
    const CProductDirectory* empty = library.FindProductDirectoryByName("empty"_s, &position);
    ASSERT_TRUE(empty);
    EXPECT_EQ(position, 1);
    EXPECT_EQ(empty->GetFolderPath(), root + "empty/"_s);
    EXPECT_EQ(library.FindProductDirectoryByName("none"_s, nullptr), nullptr);
}

TEST_F(ProductDirectorySetTest, EqualFileIsDeletedWhereverItLies)
{
    const QString first = Write("a/deep/one.rcvp", "same");
    const QString second = Write("a/deeper/two.rcvp", "same");
    const QString third = Write("z.rcvbp", "same");
    EXPECT_EQ(library.LoadProductInfo(), 1);
    EXPECT_TRUE(QFile::exists(first));
    EXPECT_FALSE(QFile::exists(second));
    EXPECT_FALSE(QFile::exists(third));

    const QString later = Write("0.rcvp", "same"); // sorts first, so that it keeps the product now
    EXPECT_EQ(library.LoadProductInfo(), 1);
    EXPECT_TRUE(QFile::exists(later));
    EXPECT_FALSE(QFile::exists(first));
}

TEST_F(ProductDirectorySetTest, FilesOfOneDigestButDifferentContentAllStay)
{
    // Two well-known blocks of one MD5 digest that differ in six bytes.
    const QByteArray one = QByteArray::fromHex(
        "d131dd02c5e6eec4693d9a0698aff95c2fcab58712467eab4004583eb8fb7f8955ad340609f4b30283e488832571415a"
        "085125e8f7cdc99fd91dbdf280373c5bd8823e3156348f5bae6dacd436c919c6dd53e2b487da03fd02396306d248cda0"
        "e99f33420f577ee8ce54b67080a80d1ec69821bcb6a8839396f9652b6ff72a70");
    QByteArray two = one;
    for (const int place : {19, 45, 59, 83, 109, 123})
        two[place] = static_cast<char>(two[place] ^ 0x80);
    const QString a = Write("a.rcvp", one);
    const QString b = Write("b.rcvp", two);
    ASSERT_EQ(CConstantData::GetMD5FromFile(a), CConstantData::GetMD5FromFile(b));

    EXPECT_EQ(library.LoadProductInfo(), 2);
    EXPECT_EQ(ReadFile(b), two);
}

TEST_F(ProductDirectorySetTest, LinksAreNeitherFollowedNorTaken)
{
    TestFolder outside;
    const QString target = outside.Write("far/a.rcvp"_s, "far");
    ASSERT_TRUE(QFile::link(outside.Path("far"_s), root + "folder"_s));
    ASSERT_TRUE(QFile::link(target, root + "file.rcvp"_s));
    ASSERT_TRUE(QFile::link(root, root + "ring"_s));
    Write("own.rcvp", "far");

    EXPECT_EQ(library.LoadProductInfo(), 1);
    QStringList names;
    CProductDirectorySet::GetAllProductName(names, &library);
    EXPECT_EQ(names, QStringList("own.rcvp"_s));
    EXPECT_TRUE(library.GetSubDirs().isEmpty());
    EXPECT_TRUE(QFile::exists(target));
}

TEST_F(ProductDirectorySetTest, ScanningAListedFolderAgainDeletesNothing)
{
    const QString path = Write("a.rcvp", "a");
    Write("b.rcvp", "b");
    library.LoadProductInfo();
    CProductDirectory node;
    unsigned int menuId = 1;
    EXPECT_EQ(library.LoadProductInfoFolderEx(root, &node, menuId), 0);
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_EQ(library.LoadProductInfoFolderEx(QString(), &node, menuId), 0);
    EXPECT_EQ(library.LoadProductInfoFolderEx(root, nullptr, menuId), 0);

    TestFolder other;
    other.Write("b.rcvp"_s, "other b");
    EXPECT_EQ(library.LoadProductInfoFolderEx(other.Path(), &node, menuId), 1); // no "/" at its end
    EXPECT_EQ(node.GetProducts().at(0)->GetParamPath(), other.Path("b.rcvp"_s));
    EXPECT_EQ(menuId, 2U);
}

TEST_F(ProductDirectorySetTest, DigestSearchFollowsEveryChangeOfTheTree)
{
    Write("sub/a.rcvp", "a");
    Write("sub/b.rcvp", "b");
    library.LoadProductInfo();
    CProductDirectory* sub = library.GetSubDirs().at(0);
    CProduct* a = sub->GetProducts().at(0);
    const SMD5 was = a->GetMd5();
    const SMD5 other = sub->GetProducts().at(1)->GetMd5();
    const SMD5 changed = SMD5::FromString(QString(SMD5::kDigits, QLatin1Char('e')));

    EXPECT_EQ(library.FindProductFromGuid(was), a);
    EXPECT_EQ(CProductDirectorySet::GetTraverFirstProduct(&library), a);
    EXPECT_EQ(CProductDirectorySet::GetThisFirstProduct(&library), nullptr);
    EXPECT_EQ(CProductDirectorySet::GetThisFirstProduct(sub), a);
    a->SetMd5(changed);
    EXPECT_EQ(library.FindProductFromGuid(was), nullptr);
    EXPECT_EQ(library.FindProductFromGuid(changed), a);
    sub->DeleteProduct(a);
    EXPECT_FALSE(CProductDirectorySet::IsSameProductExsit(changed, &library));
    EXPECT_TRUE(CProductDirectorySet::IsSameProductExsit(other, sub));
    EXPECT_FALSE(CProductDirectorySet::IsSameProductExsit(other, nullptr));
    library.DeleteSubDir(sub);
    EXPECT_EQ(library.FindProductFromGuid(other), nullptr);
}

TEST_F(ProductDirectorySetTest, DigestSearchKnowsWhatIsAddedOrCopiedAtOnce)
{
    const auto digest = [](char digit) {
        return SMD5::FromString(QString(SMD5::kDigits, QLatin1Char(digit)));
    };
    const auto add = [&](CProductDirectory& node, char digit) {
        auto* product = new CProduct;
        product->SetMd5(digest(digit));
        node.AddProduct(product);
        return product;
    };
    const auto known = [&](char digit) { return library.FindProductFromGuid(digest(digit)); };
    EXPECT_FALSE(known('a'));
    const CProduct* first = add(library, 'a');
    add(library, 'a');
    EXPECT_EQ(known('a'), first);
    auto* sub = new CProductDirectorySet; // tells the one above
    add(*sub, 'b');
    library.AddSubProductDirectory(sub);
    EXPECT_TRUE(known('b') && !known('c'));
    add(*sub, 'c');
    EXPECT_TRUE(known('c'));

    CProductDirectory other;
    add(other, 'd');
    auto* below = new CProductDirectory;
    add(*below, 'e');
    other.AddSubProductDirectory(below);
    library.CopyOtherProductDirectory(&other);
    EXPECT_TRUE(!known('a') && known('d') && known('e'));
    known('e')->SetMd5(digest('a'));
    EXPECT_TRUE(known('a'));
    known('d')->SetMd5(digest('b'));
    EXPECT_TRUE(known('b'));
    library.DeleteAll();
    EXPECT_FALSE(known('b'));
}

TEST_F(ProductDirectorySetTest, PixelSizeScansAnEmptyLibraryAndHasADefault)
{
    EXPECT_EQ(library.GetProductTypePixelSizeFromGuid(SMD5()), QSize(1024, 1024));
    const SMD5 md5 = CConstantData::GetMD5FromFile(Write("a.rcvp", "a"));
    EXPECT_EQ(library.GetProductTypePixelSizeFromGuid(md5), QSize(0, 0)); // found, the host fills it in
    library.FindProductFromGuid(md5)->SetPixelWidth(128);
    library.FindProductFromGuid(md5)->SetPixelHeight(96);
    EXPECT_EQ(library.GetProductTypePixelSizeFromGuid(md5), QSize(128, 96));

    QString name = "kept"_s;
    EXPECT_FALSE(library.GetProductTypeNameFromGuid(SMD5::FromString(QString(32, QLatin1Char('f'))), name));
    EXPECT_EQ(name, "kept"_s);
    EXPECT_TRUE(library.GetProductTypeNameFromGuid(md5, name));
    EXPECT_EQ(name, "a"_s);
}
