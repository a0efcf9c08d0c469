#include "settings/specifiediplist.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QNetworkInterface>

TEST(SpecifiedIpListTest, OnlyDottedAddressesAreReadOnceAndInOrder)
{
    TestFolder folder;
    const QString path = folder.Write(
        "SpecifiedIPs.txt"_s, "\xEF\xBB\xBF"
                              "192.0.2.9\r\n# 备注\n\n 010.1.2.3 \n192.0.2.9\n256.1.1.1\n1.2.3\n1.2.3.4.5\n"
                              "1.2.3.-4\n1.2.3.0x4\n::1\nhost\n1.2.3.٤\n1..2.3\n203.0.113.1");
    SpecifiedIpList list;
    EXPECT_FALSE(list.Save());
    ASSERT_TRUE(list.Load(path));
    EXPECT_EQ(list.Addresses(), QStringList({"192.0.2.9"_s, "10.1.2.3"_s, "203.0.113.1"_s}));
    EXPECT_TRUE(list.Remove("10.1.2.03"_s));
    ASSERT_TRUE(list.Save());
    EXPECT_EQ(ReadFile(path), "192.0.2.9\n203.0.113.1\n");
    EXPECT_FALSE(list.Load(folder.Path("missing"_s)));
    EXPECT_EQ(list.Addresses().size(), 2);
    EXPECT_TRUE(list.Load(folder.Write("large"_s, QByteArray(1 << 20, '\n'))));
    EXPECT_TRUE(list.Addresses().isEmpty());
}

TEST(SpecifiedIpListTest, ListEndsAt1024Addresses)
{
    SpecifiedIpList list;
    for (int i = 0; i < 1024; ++i)
        EXPECT_TRUE(list.Add("10.0.%1.%2"_s.arg(i / 256).arg(i % 256)));
    EXPECT_FALSE(list.Add("10.1.0.0"_s));
}

TEST(SpecifiedIpListTest, AddressesOutsideEveryNetworkAreErrors)
{
    SpecifiedIpList list;
    for (const char* address :
         {"10.1.2.3", "10.2.2.3", "192.168.7.128", "192.168.7.127", "10.8.0.1", "10.8.0.0"})
        list.Add(QLatin1String(address));
    const QVector<Ipv4Network> networks = {
        {0x0A010001, 0xFFFF0000}, {0xC0A807FE, 0xFFFFFF80}, {0x0A080001, 0}};
    EXPECT_EQ(list.Outside(networks), QStringList({"10.2.2.3"_s, "192.168.7.127"_s, "10.8.0.0"_s}));
    EXPECT_EQ(list.Outside({}), list.Addresses());

    SpecifiedIpList own;
    for (const QHostAddress& address : QNetworkInterface::allAddresses())
        own.Add(address.toString()); // those of IPv4
    EXPECT_EQ(own.Outside(GetLocalNetworks()), QStringList());
}
