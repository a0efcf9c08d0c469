#include "settings/configfile.h"

#include "common/atomicfile.h"
#include "common/canvaslimits.h"
#include "common/fieldtext.h"
#include "common/xmldom.h"
#include "common/xmlwriter.h"
#include "settings/configdescription.h"
#include "settings/hotkeys.h"

#include <QDomElement>
#include <QVector>

#include <cmath>

namespace {

constexpr const char* kRootName = "LedControlConfig";
constexpr const char* kConfigName = "Config";

class ConfigWriter
{
public:
    explicit ConfigWriter(XmlWriter& writer) : m_writer(writer) {}

    void Begin(const char* name) { m_writer.BeginElement(name); }
    void End() { m_writer.EndElement(); }

    template <class T> void Item(const char* name, const T& value)
    {
        m_writer.BeginElement(name);
        if (!Text(value).empty())
            m_writer.Text(m_text);
        m_writer.EndElement();
    }
    template <class T> void Whole(const char* name, T value, int scale) { Item(name, double(value) * scale); }
    template <class T> void Attribute(const char* name, const T& value)
    {
        m_writer.Attribute(name, Text(value));
    }
    template <class T> void Count(const char* name, const char*, const QList<T>& list, int)
    {
        Item(name, list.size());
    }

private:
    template <class T> const std::string& Text(const T& value)
    {
        m_text.clear();
        fieldtext::Append(m_text, value);
        return m_text;
    }

    XmlWriter& m_writer;
    std::string m_text;
};

/// Reads from below an element. What is missing keeps its value.
class ConfigReader
{
public:
    explicit ConfigReader(const QDomElement& config) : m_path({config}) {}

    void Begin(const char* name) { m_path.append(Child(name)); }
    void End() { m_path.removeLast(); }

    template <class T> void Item(const char* name, T& value)
    {
        const QDomElement item = Child(name);
        if (!item.isNull())
            Convert(item.text(), value);
    }

    /// The file holds the number times `scale` as a whole number. A fraction reads as 0.
    template <class T> void Whole(const char* name, T& value, int scale)
    {
        int whole = 0;
        Item(name, whole);
        if (!Child(name).isNull())
            value = static_cast<T>(whole) / static_cast<T>(scale);
    }

    template <class T> void Attribute(const char* name, T& value)
    {
        const QDomElement& element = m_path.last();
        if (element.hasAttribute(QLatin1String(name)))
            Convert(element.attribute(QLatin1String(name)), value);
    }

    // The number of children counts, not the number that the file states.
    template <class T> void Count(const char*, const char* stem, QList<T>& list, int most)
    {
        int count = 0;
        while (count < most && !Child(Numbered(stem, count + 1).c_str()).isNull())
            ++count;
        while (count > 0 && list.size() > count)
            list.removeLast();
        while (list.size() < count)
            list.append(T());
    }

private:
    QDomElement Child(const char* name) const { return m_path.last().firstChildElement(QLatin1String(name)); }

    template <class T> static void Convert(const QString& text, T& value)
    {
        const QByteArray utf8 = text.toUtf8();
        fieldtext::Read(std::string_view(utf8.constData(), size_t(utf8.size())), value);
    }

    QVector<QDomElement> m_path;
};

/// The name of a style: the one given before, else the default one, else its key.
QString NameOfStyle(const QString& key, const QList<SUiStyle>& named)
{
    for (const SUiStyle& style : named + GetDefaultUiStyles())
        if (style.key == key && !style.name.isEmpty())
            return style.name;
    return key;
}

void RepairStyles(SConfigItems* items, const QList<SUiStyle>& named)
{
    QList<SUiStyle> styles;
    for (const SUiStyle& style : qAsConst(items->uiStyles))
        if (!style.key.isEmpty() && styles.size() < kMaxUiStyles)
            styles.append({style.key, NameOfStyle(style.key, named)});
    items->uiStyles = styles;
    if (items->currentUiStyle < 0 || items->currentUiStyle >= styles.size())
        items->currentUiStyle = styles.size() == 2 ? 1 : 0;
}

void RepairProjectRecords(SConfigItems* items)
{
    QStringList records;
    for (const QString& record : items->projectRecords) {
        if (!record.isEmpty())
            records.append(record);
    }
    records.removeDuplicates();
    for (int i = 0; i < kProjectRecords; ++i)
        items->projectRecords[size_t(i)] = records.value(i);
}

void RepairNumbers(const SConfigItems& before, SConfigItems* items)
{
    if (std::isnan(items->attractionDis))
        items->attractionDis = before.attractionDis;
    else if (items->attractionDis < 8 || items->attractionDis > 30)
        items->attractionDis = SConfigItems().attractionDis;
    items->deviceInformationLayoutSize =
        qBound(kMinLayoutSize, items->deviceInformationLayoutSize, kMaxLayoutSize);
    items->beaconNoBorder = items->beaconNoBorder == 1 ? 1 : 2;
    items->customerTileWidth = qBound(1, items->customerTileWidth, kMaxCabinetSize);
    items->customerTileHeight = qBound(1, items->customerTileHeight, kMaxCabinetSize);
}

/// Replaces a text that names no key by what stood there before.
void RepairHotkeys(const SConfigItems& before, SConfigItems* items)
{
    for (size_t mode = 0; mode < kHotkeyModes; ++mode) {
        for (size_t i = 0; i < kHotkeysInMode; ++i) {
            QString& hotkey = items->hotkeys[mode][i].hotkey;
            if (!NormalizeHotkey(&hotkey))
                hotkey = before.hotkeys[mode][i].hotkey;
        }
    }
}

} // namespace

QList<SUiStyle> GetDefaultUiStyles()
{
    return {{QStringLiteral("StyleLight"), QStringLiteral("Style Light")},
            {QStringLiteral("StyleDark"), QStringLiteral("Style Dark")}};
}

bool WriteConfigFile(const QString& path, const SConfigItems& items)
{
    SConfigItems written = items;
    return ReplaceFile(path, [&written](QIODevice& file) {
        StreamXmlWriter xml(file);
        ConfigWriter writer(xml);
        writer.Begin(kRootName);
        writer.Begin(kConfigName);
        DescribeConfig(writer, written);
        writer.End();
        writer.End();
        return xml.Flush();
    });
}

bool ReadConfigFile(const QString& path, SConfigItems* items)
{
    QDomDocument document;
    if (!LoadXmlDom(path, document, nullptr))
        return false;
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String(kRootName))
        return false;
    SConfigItems read = *items;
    read.attractionDis = std::nan(""); // a host may have set what a file may not say
    ConfigReader reader(root.firstChildElement(QLatin1String(kConfigName)));
    DescribeConfig(reader, read);
    RepairNumbers(*items, &read);
    RepairHotkeys(*items, &read);
    RepairStyles(&read, items->uiStyles);
    RepairProjectRecords(&read);
    *items = read;
    return true;
}

void SetStyles(const QList<SUiStyle>& styles, SConfigItems* items)
{
    items->uiStyles = styles;
    RepairStyles(items, styles);
}
