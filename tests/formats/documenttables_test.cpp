#include "common/safefilename.h"
#include "common/xmldom.h"
#include "common/xmlreader.h"
#include "formats/samplexml.h"
#include "project/layoutdescription.h"
#include "project/projectelements.h"
#include "settings/archive.h"
#include "settings/configfile.h"
#include "settings/customizeconfig.h"
#include "settings/inifile.h"
#include "settings/specifiediplist.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QStringList>

namespace {

/// The rows of the table below the heading that names this first: the first `columns` cells, by blanks.
QString Table(const QString& heading, int columns)
{
    const QString document = QString::fromUtf8(ReadFile(QStringLiteral(ORVAN_DOCS "/file-formats.md")));
    QStringList rows;
    bool here = false;
    for (const QString& line : document.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('#')))
            here = line.section(QRegularExpression(QStringLiteral("^#+ ")), 1).startsWith(heading);
        else if (here && line.startsWith(QLatin1String("| ")))
            rows.append(line.section(QLatin1Char('|'), 1, columns).remove(QLatin1Char('|')).simplified());
    }
    return rows.mid(1).join(QLatin1Char('\n'));
}

} // namespace

TEST(DocumentTablesTest, EveryAttributeOfAProjectIsNamed)
{
    const QByteArray document = ReadFile(QStringLiteral(ORVAN_DOCS "/file-formats.md"));
    const QString elements = QString::fromUtf8(FullSample("project.xml")).section(QLatin1Char('\n'), 1);
    static const QRegularExpression attribute(QStringLiteral(" (\\w+)=\""));
    for (auto match = attribute.globalMatch(elements); match.hasNext();) {
        const QByteArray name = match.next().captured(1).toUtf8();
        EXPECT_TRUE(document.contains('`' + name + '`')) << name.constData();
    }
}

TEST(DocumentTablesTest, SettingsAndTheirDefaultsAreThoseOfANewInstallation)
{
    TestFolder folder;
    ASSERT_TRUE(WriteConfigFile(folder.Path(QStringLiteral("c.xml")), SConfigItems()));
    QDomDocument written;
    ASSERT_TRUE(ParseXmlDom(ReadFile(folder.Path(QStringLiteral("c.xml"))), written, nullptr));
    QDomElement item = written.documentElement().firstChildElement().firstChildElement();
    const QString table = Table(QStringLiteral("Settings file"), 3);
    static const QRegularExpression further(QStringLiteral("ProjectRecord[2-5]")); // share a row
    for (const QString& row : table.split(QLatin1Char('\n'))) {
        EXPECT_EQ(row.section(QLatin1Char('`'), 1, 1), item.tagName()) << qPrintable(row);
        const bool ofMachine = item.tagName() == QLatin1String("Language");
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
    // The last two before the counts of ports: of all parameter files, and of folders.
    using namespace layoutnames;
    QVector<qint64> limits;
    limits += {kMaxXmlBytes >> 20,
               kMaxTreeNodes,
               kMaxXmlAttributes,
               kMaxXmlText >> 20,
               kMaxXmlDepth,
               kMaxSenders,
               kMaxTilesOfPort,
               kMaxTilesOfFile,
               512,
               kMaxGroupsOfFile,
               256,
               kMaxListRecords,
               kMaxGroupDepth,
               kMaxArchiveEntries,
               kMaxArchiveEntrySize >> 20,
               kMaxArchiveTotalSize >> 30,
               kMaxArchiveEntrySize >> 20,
               kMaxArchiveEntries};
    for (int count = 1; count <= kMaxPorts; ++count)
        if (CSender::IsPortCountAccepted(count))
            limits.append(count);
    limits += {kMaxCabinetSize,     kMaxCabinetSize,    kMaxCanvasWidth,     kMaxCanvasHeight,
               kMaxReceiversInTile, kMaxIniBytes >> 20, kMaxJsonBytes >> 20, kMaxIpListBytes >> 20,
               kMaxSpecifiedIps,    kMaxFileNameBytes};
    static const QRegularExpression number(QStringLiteral("(?<!-)\\b\\d+")); // not that of "UTF-8"
    const QString table = Table(QStringLiteral("Limits"), 2).remove(QLatin1Char(','));
    QVector<qint64> told;
    for (auto match = number.globalMatch(table); match.hasNext();)
        told.append(match.next().captured().toLongLong());
    EXPECT_EQ(told, limits);
}
