#include "settings/inifile.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QDateTime>
#include <QKeySequence>
#include <QLineF>
#include <QRect>
#include <QSettings>
#include <QUrl>

namespace {

QVariantMap Read(const QString& path)
{
    QVariantMap values;
    EXPECT_TRUE(ReadIniValues(path, &values)) << ReadFile(path).toStdString();
    return values;
}

} // namespace

TEST(IniFileTest, BlanksAtTheEndOfATextStayWhereTheyAreEscaped)
{
    const TestFolder folder;
    const QString path = folder.Write("a.ini"_s, "a=x\\x20 \t\nb= x \nc=\"x \" \nd=x , y\\x20 \n"
                                                 "e=\"x \" , y \nf=\\101\\x62,\\\r\n c\n");
    const QVariantMap read = Read(path);
    EXPECT_EQ(read["a"_s].toString(), "x "_s);
    EXPECT_EQ(read["b"_s].toString(), "x"_s);
    EXPECT_EQ(read["c"_s].toString(), "x "_s);
    EXPECT_EQ(read["d"_s].toStringList(), QStringList({"x"_s, "y "_s}));
    EXPECT_EQ(read["e"_s].toStringList(), QStringList({"x "_s, "y"_s}));
    EXPECT_EQ(read["f"_s].toStringList(), QStringList({"Ab"_s, " c"_s}));
    EXPECT_EQ(read["f"_s].userType(), QMetaType::QStringList);
}

TEST(IniFileTest, QSettingsAndWeReadWhatTheOtherWrote)
{
    const QVariantMap values = {
        {"General/bool"_s, true},
        {"bytes"_s, QByteArray("\0\xff\"(,", 5)},
        {"colour"_s, QColor(1, 2, 3)},
        {"double"_s, -2.5},
        {"float"_s, QVariant::fromValue(1.5F)},
        {"keys"_s, QKeySequence(Qt::CTRL + Qt::Key_A)},
        {"line"_s, QLineF(1, 2, 3, 4)},
        {"list"_s, QVariantList{QDate(2026, 1, 2), QTime(3, 4), "@a"_s}},
        {"nothing"_s, QVariant()},
        {"rect"_s, QRect(-1, 2, 3, 4)},
        {"s/屏 %=;[/point"_s, QPoint(1, -2)},
        {"s/size"_s, QSize(3, 4)},
        {"text"_s, " é屏@b, \\@c\n\"d\"=;\x01"
                   "1\x7f"_s},
        {"text that looks typed"_s, "@Variant(b)"_s},
        {"text with NUL"_s, "@DateTime("_s + QChar(0)},
        {"texts"_s, QStringList{QString(), " a "_s, "@b"_s}},
        {"time"_s, QDateTime(QDate(2026, 1, 2), QTime(3, 4), Qt::UTC)},
        {"url"_s, QUrl("http://a.example/b"_s)},
    };
    for (const char* codec : {static_cast<const char*>(nullptr), "UTF-8"}) {
        const TestFolder folder;
        const auto settings = [&](const char* name) {
            auto file = std::make_unique<QSettings>(folder.Path(QLatin1String(name)), QSettings::IniFormat);
            if (codec)
                file->setIniCodec(codec);
            return file;
        };
        auto theirs = settings("theirs.ini");
        for (auto value = values.begin(); value != values.end(); ++value)
            theirs->setValue(value.key(), *value);
        theirs.reset();
        ASSERT_TRUE(WriteIniValues(folder.Path("ours.ini"_s), values));
        const QVariantMap read = Read(folder.Path("theirs.ini"_s));
        EXPECT_EQ(read, Read(folder.Path("ours.ini"_s)));
        const auto ours = settings("ours.ini");
        for (auto value = values.begin(); value != values.end(); ++value) {
            EXPECT_EQ(ours->value(value.key()), read.value(value.key())) << value.key().toStdString();
            EXPECT_EQ(*value, read.value(value.key())) << value.key().toStdString();
        }
    }
}

TEST(IniFileTest, LinesStayAsTheyAreButForTheValueThatChanges)
{
    const TestFolder folder;
    const QByteArray before = "\xef\xbb\xbf; first\r\na = 1 ; why\n\n[s]\nb=\\x35\nb=\"x;\\\ny\";last\n"
                              "/=2\nt=@Variant(\\0\\0\\0\\t\\0\\0\\0\\0)\n[%GENERAL]\nc=1\r\n[empty]";
    const QString path = folder.Write("a.ini"_s, before);
    QVariantMap values = Read(path);
    EXPECT_EQ(values.keys().join(QLatin1Char(' ')), "GENERAL/c a s/b s/t"_s);
    ASSERT_TRUE(WriteIniValues(path, values));
    EXPECT_EQ(ReadFile(path), before + '\n');

    values = {{"a"_s, "屏"_s},      {"/s//b/"_s, 3}, {"s/new"_s, 4},    {"empty/d"_s, 5},
              {"x/y/z"_s, "6 7"_s}, {"e"_s, 7},      {"GENERAL/f"_s, 8}};
    ASSERT_TRUE(WriteIniValues(path, values));
    EXPECT_EQ(ReadFile(path).toStdString(),
              "\xef\xbb\xbf; first\r\na =\\x5c4f; why\ne=7\n\n[s]\nb=\\x35\nb=3;last\n"
              "/=2\nt=@Variant(\\0\\0\\0\\t\\0\\0\\0\\0)\nnew=4\n[%GENERAL]\nc=1\r\nf=8\n[empty]\nd=5\n"
              "\n[x]\ny\\z=6 7\n");
    EXPECT_FALSE(WriteIniValues(path, {{"a"_s, QVariantMap()}}));
    EXPECT_FALSE(WriteIniValues(path, {{"//"_s, 1}}));
    EXPECT_FALSE(WriteIniValues(path, {{"a"_s, QString(1 << 22, QLatin1Char('a'))}}));
    EXPECT_FALSE(WriteIniValues(path, {{"a"_s, QVariantList{1}}})) << "it would come back as a text";
    EXPECT_EQ(Read(path).value("a"_s), "屏"_s);
    const QString fresh = folder.Path("new/b.ini"_s);
    EXPECT_TRUE(WriteIniValues(fresh, {{"a"_s, QStringList()}, {"b"_s, QVariantList()}}));
    EXPECT_EQ(ReadFile(fresh), "[General]\na=@Invalid()\nb=@Invalid()\n");
}

TEST(IniFileTest, NoValueIsBuiltOfATypeThatAFileNames)
{
    const QByteArray time = "@DateTime(\\0\\0\\0\\x10\\0\\0\\0\\0\\0\\0%\\x8d\\x85\\0\\xa8u\\0";
    const QByteArray list =
        QByteArray("\\0\\0\\0\\t\\0\\0\\0\\x1").repeated(100000); // each holds the next one
    const struct
    {
        QByteArray value;
        int type;
    } cases[] = {{"@Variant(" + list + ")", QMetaType::UnknownType},
                 {"\\x40Variant(" + list + ")", QMetaType::UnknownType},
                 {"a, \"@Vari\"ant(" + list + ")", QMetaType::QVariantList},
                 {"@DateTime(" + list + ")", QMetaType::UnknownType},
                 {time + "\\x1)", QMetaType::QDateTime},
                 {time + "\\x3\\0\\0\\0\\x4\\0U)", QMetaType::UnknownType}, // a time zone by its name
                 {"@Variant(\\0\\0\\0\\x11\\xff\\xff)", QMetaType::UnknownType},
                 {"@Variant(\\0\\0\\0\\x11\\0\\0\\0\\x1z)", QMetaType::QUrl}};
    for (const auto& given : cases) {
        const TestFolder folder;
        const QVariant read = Read(folder.Write("a.ini"_s, "a=" + given.value)).value("a"_s);
        EXPECT_EQ(read.userType(), given.type) << given.value.left(40).toStdString();
        EXPECT_TRUE(read.toList().isEmpty() || !read.toList().last().isValid());
    }
}

TEST(IniFileTest, WhatIsNoIniTextIsRefused)
{
    const TestFolder folder;
    for (const char* text : {"a", "[s\n]", "a=\"1\n[s]\n", "a=1\\\n", "a=1\\", "[s;]\n"}) {
        QVariantMap values;
        const QString path = folder.Write("a.ini"_s, text);
        EXPECT_FALSE(ReadIniValues(path, &values)) << text;
        EXPECT_FALSE(WriteIniValues(path, {{"a"_s, 1}})) << text;
        EXPECT_EQ(ReadFile(path), text);
    }
}
