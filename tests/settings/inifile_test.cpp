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

TEST(IniFileTest, QSettingsAndWeReadWhatTheOtherWrote)
{
    const QVariantMap values = {
        {QStringLiteral("General/bool"), true},
        {QStringLiteral("bytes"), QByteArray("\0\xff\"(,", 5)},
        {QStringLiteral("colour"), QColor(1, 2, 3)},
        {QStringLiteral("float"), QVariant::fromValue(1.5F)},
        {QStringLiteral("keys"), QKeySequence(Qt::CTRL + Qt::Key_A)},
        {QStringLiteral("line"), QLineF(1, 2, 3, 4)},
        {QStringLiteral("list"), QVariantList{QDate(2026, 1, 2), QTime(3, 4), QStringLiteral("@a")}},
        {QStringLiteral("nothing"), QVariant()},
        {QStringLiteral("rect"), QRect(-1, 2, 3, 4)},
        {QStringLiteral("s/屏 %=;[/point"), QPoint(1, -2)},
        {QStringLiteral("s/size"), QSize(3, 4)},
        {QStringLiteral("text"), QStringLiteral(" é屏@b, \\@c\n\"d\"=;\x01"
                                                "1\x7f")},
        {QStringLiteral("text that looks typed"), QStringLiteral("@Variant(b)")},
        {QStringLiteral("text with NUL"), QStringLiteral("@DateTime(") + QChar(0)},
        {QStringLiteral("texts"), QStringList{QString(), QStringLiteral(" a "), QStringLiteral("@b")}},
        {QStringLiteral("time"), QDateTime(QDate(2026, 1, 2), QTime(3, 4), Qt::UTC)},
        {QStringLiteral("url"), QUrl(QStringLiteral("http://a.example/b"))},
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
        ASSERT_TRUE(WriteIniValues(folder.Path(QStringLiteral("ours.ini")), values));
        const QVariantMap read = Read(folder.Path(QStringLiteral("theirs.ini")));
        EXPECT_EQ(read, Read(folder.Path(QStringLiteral("ours.ini"))));
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
                              "/=2\nt=@Variant(\\0\\0\\0\\t\\0\\0\\0\\0)\n[%GENERAL]\nc=1\n[empty]";
    const QString path = folder.Write(QStringLiteral("a.ini"), before);
    QVariantMap values = Read(path);
    EXPECT_EQ(values.keys().join(QLatin1Char(' ')), QStringLiteral("GENERAL/c a s/b s/t"));
    ASSERT_TRUE(WriteIniValues(path, values));
    EXPECT_EQ(ReadFile(path), before + '\n');

    values = {{QStringLiteral("a"), QStringLiteral("屏")},
              {QStringLiteral("/s//b/"), 3},
              {QStringLiteral("s/new"), 4},
              {QStringLiteral("empty/d"), 5},
              {QStringLiteral("x/y/z"), 6},
              {QStringLiteral("e"), 7},
              {QStringLiteral("GENERAL/f"), 8}};
    ASSERT_TRUE(WriteIniValues(path, values));
    EXPECT_EQ(ReadFile(path).toStdString(),
              "\xef\xbb\xbf; first\r\na =\\x5c4f; why\ne=7\n\n[s]\nb=\\x35\nb=3;last\n"
              "/=2\nt=@Variant(\\0\\0\\0\\t\\0\\0\\0\\0)\nnew=4\n[%GENERAL]\nc=1\nf=8\n[empty]\nd=5\n"
              "\n[x]\ny\\z=6\n");
    EXPECT_FALSE(WriteIniValues(path, {{QStringLiteral("a"), QVariantMap()}}));
    EXPECT_FALSE(WriteIniValues(path, {{QStringLiteral("//"), 1}}));
    EXPECT_FALSE(WriteIniValues(path, {{QStringLiteral("a"), QString(1 << 22, QLatin1Char('a'))}}));
    EXPECT_EQ(Read(path).value(QStringLiteral("a")), QStringLiteral("屏"));
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
        const QVariant read =
            Read(folder.Write(QStringLiteral("a.ini"), "a=" + given.value)).value(QStringLiteral("a"));
        EXPECT_EQ(read.userType(), given.type) << given.value.left(40).toStdString();
        EXPECT_TRUE(read.toList().isEmpty() || !read.toList().last().isValid());
    }
}

TEST(IniFileTest, WhatIsNoIniTextIsRefused)
{
    const TestFolder folder;
    for (const char* text : {"a", "[s\n]", "a=\"1\n[s]\n", "a=1\\\n", "a=1\\", "[s;]\n"}) {
        QVariantMap values;
        const QString path = folder.Write(QStringLiteral("a.ini"), text);
        EXPECT_FALSE(ReadIniValues(path, &values)) << text;
        EXPECT_FALSE(WriteIniValues(path, {{QStringLiteral("a"), 1}})) << text;
        EXPECT_EQ(ReadFile(path), text);
    }
}
