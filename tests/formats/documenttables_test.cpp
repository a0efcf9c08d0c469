#include "common/safefilename.h"
#include "common/xmldom.h"
#include "common/xmlreader.h"
#include "layout/storedtile.h"
#include "params/deviceblocks.h"
#include "project/layoutdescription.h"
#include "project/projectdescription.h"
#include "project/projectelements.h"
#include "settings/archive.h"
#include "settings/configfile.h"
#include "settings/customizeconfig.h"
#include "settings/inifile.h"
#include "settings/specifiediplist.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace {

template <class T> QString TypeOf(const T&)
{
    if (std::is_same_v<T, bool>)
        return "flag"_s;
    if (std::is_same_v<T, QUuid>)
        return "id"_s;
    if (std::is_same_v<T, SMD5>)
        return "digest"_s;
    if (std::is_floating_point_v<T>)
        return "fraction"_s;
    return std::is_same_v<T, QString> ? "text"_s : "number"_s;
}

std::string Lines(const QStringList& rows)
{
    return rows.join(QLatin1Char('\n')).toStdString();
}

/// The fields of descriptions, as the rows of the tables name them.
class FieldList
{
public:
    template <class T> void Field(const FieldName& name, const T& value, FieldUse use = FieldUse::Both)
    {
        static const char* const kUses[] = {"", "never read", "never written", "if present"};
        const QString quoted = QLatin1Char('`') + name.Text() + QLatin1Char('`');
        // What a record holds in another form than the file.
        static const QHash<QString, QString> kForms{{"PortColor"_s, "colour"_s},
                                                    {"IsMultiCabinet"_s, "flag"_s},
                                                    {"IsMultiFixed"_s, "flag"_s},
                                                    {"MultiOrdered"_s, "flag"_s}};
        m_rows.append(quoted + QLatin1Char(' ') + kForms.value(name.Text(), TypeOf(value)));
        if (use != FieldUse::Both)
            m_deviations.append(m_element + QLatin1Char(' ') + quoted + QLatin1Char(' ')
                                + QLatin1String(kUses[static_cast<int>(use)]));
    }

    void Begin(const char* element)
    {
        m_element = QLatin1Char('`') + QLatin1String(element) + QLatin1Char('`');
    }
    std::string TakeRows() { return Lines(std::exchange(m_rows, {})); }
    std::string TakeDeviations() { return Lines(std::exchange(m_deviations, {})); }

private:
    QString m_element;
    QStringList m_rows;
    QStringList m_deviations;
};

/// The rows of the table below the heading that names this first: the first `columns` cells, by blanks.
std::string Table(const QString& heading, int columns)
{
    const QString document = QString::fromUtf8(ReadFile(QStringLiteral(ORVAN_DOCS "/file-formats.md")));
    QStringList rows;
    bool here = false;
    for (const QString& line : document.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('#')))
            here = line.section(QRegularExpression("^#+ (Groups: )?"_s), 1).startsWith(heading);
        else if (here && line.startsWith("| "_s))
            rows.append(line.section(QLatin1Char('|'), 1, columns).remove(QLatin1Char('|')).simplified());
    }
    return Lines(rows.mid(1));
}

} // namespace

TEST(DocumentTablesTest, AttributesAndDeviationsAreThoseOfTheDescriptions)
{
    FieldList f;
    const auto expect = [&f](const char* element, auto record, auto describe) {
        f.Begin(element);
        describe(f, record);
        EXPECT_EQ(Table(QLatin1Char('`') + QLatin1String(element) + QLatin1Char('`'), 2), f.TakeRows());
    };
    expect("VersionSupport", VersionRecord(), [](auto& l, auto& r) { DescribeVersion(l, r); });
    expect("DemoModeInfo", SDemoMode(), [](auto& l, auto& r) { DescribeDemoMode(l, r); });
    expect("SenderGroup_n", SSenderGroupInfo(), [](auto& l, auto& r) { DescribeSenderGroup(l, r); });
    expect("Gamma_n", SRcvParamGamma(), [](auto& l, auto& r) { DescribeGamma(l, r); });
    expect("PrintFormData", SPrintFormData(), [](auto& l, auto& r) { DescribePrintForm(l, r); });
    expect("File", SParameterFileInfo(), [](auto& l, auto& r) { DescribeParameterFile(l, r); });
    expect("Sender_n", StoredSender(), [](auto& l, auto& r) {
        DescribeSenderDevice(l, CSender());
        DescribeSender(l, r);
    });
    expect("Port_n", PortFields(), [](auto& l, auto& r) { DescribePort(l, r); });
    expect("Tile_n", StoredTile(), [](auto& l, auto& r) { DescribeTile(l, r); });
    expect("TileGroup_n", GroupFields(), [](auto& l, auto& r) {
        DescribeGroup(l, r);
        l.Field(layoutnames::kGroupCount, 0);
    });
    expect("Monitor", MonitorRecord(), [](auto& l, auto& r) { DescribeMonitor(l, r); });
    EXPECT_EQ(Table("Deviations between"_s, 3), f.TakeDeviations());

    SenderParamData data;
    f.Begin("AdvancedParam");
    params::DescribeAdvanced(f, data);
    params::DescribeProcessorAdvanced(f, data);
    EXPECT_EQ(Table("Deviations in parameter files"_s, 3), f.TakeDeviations());
}

TEST(DocumentTablesTest, SettingsAndTheirDefaultsAreThoseOfANewInstallation)
{
    TestFolder folder;
    ASSERT_TRUE(WriteConfigFile(folder.Path("c.xml"_s), SConfigItems()));
    QDomDocument written;
    ASSERT_TRUE(ParseXmlDom(ReadFile(folder.Path("c.xml"_s)), written, nullptr));
    QDomElement item = written.documentElement().firstChildElement().firstChildElement();
    const QString table = QString::fromStdString(Table("Settings file"_s, 3));
    static const QRegularExpression further("ProjectRecord[2-5]"_s); // share a row
    for (const QString& row : table.split(QLatin1Char('\n'))) {
        EXPECT_EQ(row.section(QLatin1Char('`'), 1, 1), item.tagName()) << qPrintable(row);
        const bool ofMachine = item.tagName() == "Language"_s;
        if (item.firstChildElement().isNull() && !item.text().isEmpty() && !ofMachine) {
            EXPECT_EQ(row.section(QLatin1Char(' '), -1), item.text()) << qPrintable(row);
        }
        do
            item = item.nextSiblingElement();
        while (further.match(item.tagName()).hasMatch());
    }
    EXPECT_TRUE(item.isNull());
}

TEST(DocumentTablesTest, LimitsAreThoseOfTheCode)
{
    const auto row = [](const char* what, qint64 limit, const char* unit = "") {
        return "%1 %2%3"_s.arg(QLatin1String(what)).arg(limit).arg(QString::fromUtf8(unit));
    };
    const auto mebibytes = [&row](const char* what, qint64 bytes) { return row(what, bytes >> 20, " MiB"); };
    QString portCounts = "ports of a sender"_s;
    for (int count = 1; count <= kMaxPorts; ++count)
        if (CSender::IsPortCountAccepted(count))
            portCounts += QLatin1Char(' ') + QString::number(count);
    const QString limits =
        QLatin1Char('\n')
        + QString::fromStdString(Table("Limits"_s, 2)).remove(QLatin1Char(',')).replace(" or "_s, " "_s);
    for (const QString& limit :
         {mebibytes("XML file", kMaxXmlBytes),
          row("XML file of parameters settings", kMaxTreeNodes, " elements"),
          row("attributes of an element", kMaxXmlAttributes),
          mebibytes("one attribute the text in one element", kMaxXmlText),
          row("nesting of elements", kMaxXmlDepth),
          row("senders of a project", layoutnames::kMaxSenders),
          row("cabinets of a port", kMaxTilesOfPort),
          row("cabinets of a file", layoutnames::kMaxTilesOfFile),
          row("\ngroups of cabinets of a file", layoutnames::kMaxGroupsOfFile),
          row("sender groups gamma values parameter files of a file", kMaxListRecords),
          row("\nnesting of groups", layoutnames::kMaxGroupDepth),
          row("entries of an archive", kMaxArchiveEntries),
          mebibytes("one entry unpacked", kMaxArchiveEntrySize),
          row("an archive unpacked", kMaxArchiveTotalSize >> 30, " GiB"),
          portCounts,
          row("\ncabinet", kMaxCabinetSize, " × 1024 pixels"),
          row("canvas", kMaxCanvasWidth, " × ") + QString::number(kMaxCanvasHeight),
          row("receiving cards of a cabinet with an order of its own", kMaxReceiversInTile),
          mebibytes("INI file", kMaxIniBytes),
          mebibytes("JSON file", kMaxJsonBytes),
          mebibytes("list of addresses", kMaxIpListBytes) + " %1 addresses"_s.arg(kMaxSpecifiedIps),
          row("name that becomes a file name", kMaxFileNameBytes, " bytes")})
        EXPECT_TRUE(limits.contains(QRegularExpression(limit + "(?!\\d)"_s)))
            << limit.toStdString() << "\nis not in:" << limits.toStdString();
}
