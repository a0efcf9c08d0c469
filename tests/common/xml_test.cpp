#include "common/xmldom.h"
#include "common/xmlreader.h"
#include "common/xmlwriter.h"
#include "support/text.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace {

/// Writes down what it is given: names, the attribute "a", and the nesting.
class Recorder : public XmlHandler
{
public:
    void Begin(XmlAttributes& attributes) override
    {
        const auto a = attributes.Find("a");
        log += "(" + std::string(a.value_or(""));
    }
    XmlHandler* Child(std::string_view name) override
    {
        log += name;
        return name == "skip" ? nullptr : this;
    }
    void Aside() override { log += "!"; }
    void End() override { log += ")"; }
    QString GetRefusal() const override { return refusal; }

    std::string log;
    QString refusal;
};

std::string Parsed(const QByteArray& content, bool expected, const char* why = "")
{
    QByteArray bytes = content;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    Recorder recorder;
    QString error;
    EXPECT_EQ(ParseXml(buffer, recorder, &error), expected) << error.toStdString();
    EXPECT_EQ(error.isEmpty(), expected);
    EXPECT_TRUE(error.contains(QString::fromUtf8(why))) << error.toStdString();
    return recorder.log;
}

QByteArray Nested(int depth)
{
    return "<?xml version='1.0'?>" + QByteArray("<e>").repeated(depth) + QByteArray("</e>").repeated(depth);
}

} // namespace

TEST(XmlReaderTest, StreamAndTreeGiveTheSameToAHandler)
{
    const QByteArray content = "<r a='1'><x a='2&lt;'/><skip><x/></skip><y b='3'><x a='屏'/></y>"
                               "<p:x xmlns:p='u' a='4'/></r>";
    const std::string log = Parsed(content, true);
    EXPECT_EQ(log, "r(1x(2<)skipy(x(屏))p:x(4))");

    QDomDocument document;
    ASSERT_TRUE(ParseXmlDom(content, document, nullptr));
    Recorder recorder;
    recorder.Child("r");
    WalkDom(document.documentElement(), recorder);
    EXPECT_EQ(recorder.log, log);
}

TEST(XmlReaderTest, HandlerHearsOfWhatIsNoElementAndMayRefuse)
{
    EXPECT_EQ(Parsed("<?a?><r><!--b--><skip><!--c--><?d?></skip>e<![CDATA[f]]><?g?></r><!--h-->", true),
              "!r(!skip!!)!");
    QBuffer buffer;
    buffer.setData("<r/>");
    buffer.open(QIODevice::ReadOnly);
    Recorder recorder;
    recorder.refusal = "why"_s;
    QString error;
    EXPECT_FALSE(ParseXml(buffer, recorder, &error));
    EXPECT_EQ(error, recorder.refusal);
}

TEST(XmlReaderTest, NulIsPassedOverHoweverItIsWritten)
{
    const QByteArray zeros(300000, '0');
    for (const QByteArray& nul : {QByteArray(1, '\0'), QByteArray("&#0;"), QByteArray("&#x00;"),
                                  "&#" + zeros + ';', QByteArray("&#\0x0;", 7)})
        EXPECT_EQ(Parsed("<r a='a" + nul + "b&#10;&amp;'/>", true), "r(ab\n&)") << nul.left(9).toStdString();
    for (const char* other : {"&#;", "&#x;", "&#X0;", "&#00", "&#01;", "&#0g;"})
        Parsed(QByteArray("<r a='") + other + "'/>", false);
    for (const char* end : {"&", "&#", "&#x", "&#0"})
        Parsed(QByteArray("<r/>") + end, false);
    for (int before = 1; before < 8; ++before) { // cut in two by the end of a chunk
        const QByteArray text = QByteArray(256 * 1024 - 6 - before, 'x');
        EXPECT_EQ(Parsed("<r a='" + text + "&#x000;'/>", true).size(), size_t(text.size()) + 3);
        EXPECT_EQ(Parsed("<r a='" + text + "&#x009;'/>", true).back(), ')');
    }
}

TEST(XmlReaderTest, OnlyValuesInATagCountAsItsAttributes)
{
    QByteArray many;
    QByteArray most;
    for (int i = 0; i <= kMaxXmlAttributes; ++i) {
        most = many;
        many += " a" + QByteArray::number(i) + "='>'";
    }
    const QByteArray full = "<b" + most + "/>";
    const QByteArray others[] = {"<!--- <b" + many + "-->", "<![CDATA[<b" + many + "]]]>",
                                 "<?b <c" + many + " ?>",   "<b>" + many + "</b>",
                                 "<b a=\"" + many + "\"/>", full + full};
    for (const QByteArray& other : others) {
        Parsed("<r>" + other + "</r>", true);
        Parsed("<r>" + other + "<b" + many + "/></r>", false);
        // After a comment of more than two chunks the guard sees all before the parser does.
        const QByteArray looked = "<r><!-- > x-> <b" + many + QByteArray(250000, 'x') + "-->" + other;
        Parsed(looked + full + "</r>", true);
        Parsed(looked + "<b" + most, false, "语法错误");
        Parsed(looked + "<b" + many, false, "属性过多");
    }
}

TEST(XmlReaderTest, EncodingIsThatOfTheMarkAndTheDeclaration)
{
    const QString text = "<?xml version='1.0' encoding='UTF-16'?><r a='屏\U0001F600'/>"_s;
    QByteArray little(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    QByteArray big = little;
    for (int i = 0; i < little.size(); ++i)
        big[i] = little.at(i ^ 1);
    for (const QByteArray& bytes : {little, big, "\xFF\xFE" + little, "\xFE\xFF" + big})
        EXPECT_EQ(Parsed(bytes, true), "r(屏\U0001F600)");
    EXPECT_EQ(Parsed("\xEF\xBB\xBF<r a='屏'/>", true), "r(屏)");
    EXPECT_EQ(Parsed("<?xml version='1.0' encoding='iso-8859-1'?><r a='\xE4'/>", true), "r(ä)");
    const QByteArray declared = "<?xml version='1.0' encoding='%'?><r a='\xE4'/>";
    for (const auto& [name, why] : {std::pair("UTF-8", "第1行"),
                                    {"US-ASCII", "编码不符"},
                                    {"UTF-16", "不支持文件的编码"},
                                    {"GBK", "不支持文件的编码"}})
        Parsed(QByteArray(declared).replace('%', name), false, why);
    Parsed(QByteArray(declared).replace('%', "US-ASCII").replace("a=", QByteArray(70000, ' ') + "a="), false,
           "编码不符");
    Parsed(little.left(little.size() - 8) + little.right(6), false); // half a pair

    for (const char* before : {"", "x"}) { // one of them has pairs that the end of a chunk cuts in two
        const QString pairs = QLatin1String(before) + "\U0001F600"_s.repeated(60000);
        const QString document = "<r a='"_s + pairs + "'/>"_s;
        const QByteArray bytes(reinterpret_cast<const char*>(document.utf16()), document.size() * 2);
        EXPECT_TRUE(Parsed(bytes, true) == "r(" + pairs.toStdString() + ")") << before;
    }
}

TEST(XmlReaderTest, DeepNestingLongTextDoctypeAndBrokenFilesAreRefused)
{
    EXPECT_EQ(Parsed(Nested(kMaxXmlDepth), true).size(), 3u * kMaxXmlDepth);
    Parsed(Nested(kMaxXmlDepth + 1), false);
    Parsed("<!DOCTYPE r [<!ENTITY e 'x'>]><r>&e;</r>", false);
    Parsed("<!DOCTYPE r><r/>", false, "文档类型声明");
    Parsed("<r><x></r>", false);
    Parsed("", false, "内容不完整");
    Parsed("<r><x/>", false, "内容不完整");
    Parsed("\n<r/>\nx", false, "第3行）：根元素之后还有内容");
    Parsed("<r a='1' a='2'/>", false);
    const QByteArray text(kMaxXmlText, 'x');
    Parsed("<r a='" + text + "'/>", true);
    Parsed("<r a='" + text + "x'/>", false);
    Parsed("<r>" + text + "<x>" + text + "</x>" + text + "</r>", true);
    Parsed("<r>" + text + "<![CDATA[x]]></r>", false);

    QDomDocument document;
    QString error;
    EXPECT_FALSE(ParseXmlDom(Nested(20000), document, &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(ParseXmlDom("<r><\u200C/></r>", document, &error)) << "a name that only trees refuse";
    EXPECT_TRUE(document.isNull());
}

TEST(XmlWriterTest, WhatIsWrittenReadsTheSame)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    StreamXmlWriter writer(buffer);
    writer.BeginElement("r");
    writer.Attribute("a", "<\"&'>\t\r\n屏");
    writer.BeginElement("t");
    writer.Text("1 < 2");
    writer.EndElement();
    writer.EndElement();
    ASSERT_TRUE(writer.Flush());
    EXPECT_EQ(Parsed(buffer.data(), true), "r(<\"&'>\t\r\n屏t())");
    EXPECT_TRUE(buffer.data().contains("<t>1 &lt; 2</t>"));
}
