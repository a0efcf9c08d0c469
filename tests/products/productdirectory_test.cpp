#include "products/productdirectory.h"
#include "products/productdirectoryset.h"
#include "support/text.h"

#include <gtest/gtest.h>

namespace {

SMD5 Digest(char digit)
{
    return SMD5::FromString(QString(SMD5::kDigits, QLatin1Char(digit)));
}

CProduct* NewProduct(char digit, const char* path)
{
    auto* product = new CProduct;
    product->SetMd5(Digest(digit));
    product->SetParamPath(QString::fromUtf8(path));
    return product;
}

/// root: a; root/sub: b; root/sub/deep: c
struct ProductDirectoryTest : testing::Test
{
    ProductDirectoryTest()
    {
        root.SetFolderPath("/root/"_s);
        sub->SetFolderPath("/root/sub/"_s);
        deep->SetFolderPath("/root/sub/deep/"_s);
        root.AddProduct(NewProduct('a', "/root/first.rcvp"));
        sub->AddProduct(NewProduct('b', "/root/sub/二.v2.rcvbp"));
        deep->AddProduct(NewProduct('c', "/root/sub/deep/third.rcvp"));
        sub->AddSubProductDirectory(deep);
        root.AddSubProductDirectory(sub);
    }

    CProductDirectory root;
    CProductDirectory* sub = new CProductDirectory;
    CProductDirectory* deep = new CProductDirectory;
};

} // namespace

TEST_F(ProductDirectoryTest, SearchesGoDepthFirst)
{
    auto* late = NewProduct('c', "/root/other/third.rcvp");
    late->SetMenuID(7);
    auto* other = new CProductDirectory;
    other->AddProduct(late);
    root.AddSubProductDirectory(other);

    EXPECT_EQ(root.GetProductCount(), 4);
    EXPECT_EQ(root.FindProductFromGuid(Digest('c')), deep->GetProducts().at(0));
    EXPECT_EQ(root.FindeProductFromMenuID(7), late);
    EXPECT_EQ(root.FindProductByFileName("third.rcvp"_s), deep->GetProducts().at(0));
    QString path;
    EXPECT_TRUE(root.GetProductAbsolutePath(Digest('b'), path));
    EXPECT_FALSE(root.GetProductAbsolutePath(Digest('d'), path));
    EXPECT_EQ(path, sub->GetProducts().at(0)->GetParamPath());
    EXPECT_EQ(sub->GetProducts().at(0)->GetName(), "二.v2"_s);
    sub->SetFolderPath("a"_s);
    EXPECT_EQ(root.GetFileDirName() + deep->GetFileDirName() + sub->GetFileDirName(), "rootdeepa"_s);
}

TEST_F(ProductDirectoryTest, CopyOfAProductHoldsAllOfIt)
{
    CProduct product;
    product.SetMd5(Digest('c'));
    product.SetMenuID(5);
    product.SetParamPath("/a/b.rcvbp"_s);
    product.SetPixelWidth(128);
    product.SetPixelHeight(64);
    product.SetMulti(true);
    product.SetMultiFlagSet(true);
    CProduct copy;
    copy.CopyByProduct(&product);
    copy.CopyByProduct(nullptr);
    EXPECT_TRUE(copy.GetMd5() == Digest('c') && copy.GetMenuID() == 5 && copy.GetName() == "b"_s);
    EXPECT_TRUE(copy.GetPixelWidth() == 128 && copy.GetPixelHeight() == 64);
    EXPECT_TRUE(copy.IsMulti() && copy.IsMultiFlagSet());
}

TEST_F(ProductDirectoryTest, WhatLiesDeepIsDeletedFromAbove)
{
    CProduct stranger;
    auto* other = new CProductDirectory;
    EXPECT_TRUE(root.AddSubProductDirectory(other));
    other->AddProduct(NewProduct('d', "/root/other/fourth.rcvp"));
    QStringList names;
    CProductDirectorySet::GetAllProductName(names, &root);
    EXPECT_EQ(names, (QStringList{"first.rcvp"_s, "二.v2.rcvbp"_s, "third.rcvp"_s, "fourth.rcvp"_s}));
    EXPECT_FALSE(root.DeleteProduct(&stranger));
    EXPECT_TRUE(root.DeleteProduct(other->GetProducts().at(0)));
    EXPECT_TRUE(root.DeleteProduct(deep->GetProducts().at(0)));
    EXPECT_EQ(root.GetProductCount(), 2);
    EXPECT_TRUE(root.DeleteSubDir(deep));
    EXPECT_FALSE(root.DeleteSubDir(deep));
    EXPECT_TRUE(sub->GetSubDirs().isEmpty());
}

TEST_F(ProductDirectoryTest, NothingGetsTwoOwners)
{
    EXPECT_FALSE(root.AddProduct(nullptr));
    EXPECT_FALSE(root.AddProduct(deep->GetProducts().at(0)));
    EXPECT_FALSE(root.AddSubProductDirectory(deep));
    EXPECT_FALSE(deep->AddSubProductDirectory(&root)); // would close a ring
    EXPECT_EQ(root.GetProductCount(), 3);
}

TEST_F(ProductDirectoryTest, CopyIsDeepAndSafeWithinOneTree)
{
    deep->SetExpanded(true);
    CProduct* product = deep->GetProducts().at(0);
    product->SetMenuID(9);

    root.CopyOtherProductDirectory(deep); // frees deep
    EXPECT_EQ(root.GetFolderPath(), "/root/sub/deep/"_s);
    EXPECT_TRUE(root.IsExpanded());
    EXPECT_TRUE(root.GetSubDirs().isEmpty());
    const CProduct* copy = root.FindProductFromGuid(Digest('c'));
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->GetMenuID(), 9U);

    root.CopyOtherProductDirectory(&root);
    EXPECT_EQ(root.GetProductCount(), 1);
}
