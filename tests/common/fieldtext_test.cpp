#include "common/fieldtext.h"
#include "support/text.h"

#include <gtest/gtest.h>

namespace {

template <class T> std::string Text(const T& value)
{
    std::string text;
    fieldtext::Append(text, value);
    return text;
}

template <class T> T Value(std::string_view text, T before)
{
    fieldtext::Read(text, before);
    return before;
}

} // namespace

TEST(FieldTextTest, NumbersReadAsQtReadsThemButAreFinite)
{
    for (const char* text :
         {"12", " 12 ", "+12", "-12", "1.5", "0x12", "", " ", "2147483648", "12a", "--1", "+-1"})
        EXPECT_EQ(Value(text, 7), QString::fromLatin1(text).toInt()) << text;
    for (const char* text : {"4294967295", "-1", "4294967296"})
        EXPECT_EQ(Value(text, 7u), QString::fromLatin1(text).toUInt()) << text;
    for (const char* text : {"2.85", "1e3", "-.5", "abc", "5,5"})
        EXPECT_EQ(Value(text, 7.0), QString::fromLatin1(text).toDouble()) << text;
    const QUuid id = QUuid::createUuid();
    EXPECT_EQ(Value(" " + Text(id) + "\n", QUuid()), id);
    EXPECT_EQ(Value("nan", 7.0), 7.0);
    EXPECT_EQ(Value("inf", 7.0), 7.0);
    EXPECT_EQ(Value("1e300", 7.0f), 7.0f);
}

TEST(FieldTextTest, FloatsHaveSixSignificantDigitsAsQtWritesThem)
{
    for (double value : {2.2, 6.0, 0.1 + 0.2, 999999.0, -1e6, 1234567.0, 1e-5, -100.0, 29.999999, 1e22})
        EXPECT_EQ(Text(value), QString::number(value, 'g', 6).toStdString());
    EXPECT_EQ(Text(32767.25) + ' ' + Text(-1234.125) + ' ' + Text(-0.0), "32767.3 -1234.13 0") << "ties";
    EXPECT_EQ(Text(2.85f), "2.85");
}

TEST(FieldTextTest, DigestsCarryTheirClosingNulAndReadWithAndWithoutIt)
{
    const std::string digits = "6a68bac7e613028bb11b40c35340e863";
    const SMD5 md5 = Value(digits, SMD5());
    EXPECT_EQ(Text(md5), digits + '\0');
    EXPECT_EQ(Value(digits + '\0', SMD5()), md5);
    EXPECT_EQ(Value(digits.substr(1), md5), md5) << "31 characters are no digest";
    EXPECT_EQ(Text(SMD5()), "");
    EXPECT_EQ(Value(digits.substr(1) + "\xc3\xa9", md5), md5) << "half a character would spoil the file";
    SMD5 spoilt = md5;
    spoilt.digest[0] = '\xc3';
    spoilt.digest[1] = '\x01';
    EXPECT_EQ(Text(spoilt), "\xc3\x83" + digits.substr(2) + '\0');
}

TEST(FieldTextTest, TextLosesWhatNoFileCanHold)
{
    const QString text = "a\tb屏\U0001F600"_s + QChar(0xD800) + QChar(0xFFFE) + QChar(0) + QChar(0x1b);
    EXPECT_EQ(Text(text + "z"_s), "a\tb屏\U0001F600z"_s.toStdString());
}
