#include "settings/configfile.h"

#include "common/atomicfile.h"
#include "common/fieldtext.h"
#include "common/xmldom.h"
#include "common/xmlwriter.h"
#include "settings/configdescription.h"

#include <QDomElement>
#include <QSet>
#include <QVector>

namespace {

constexpr const char* kRootName = "LedControlConfig";
constexpr const char* kConfigName = "Config";
constexpr const char* kTrue = "TRUE";
constexpr const char* kFalse = "FALSE";

/// Sets every item to its default.
class ConfigDefaults
{
public:
    void Begin(const char*) {}
    void End() {}
    template <class T, class D> void Item(const char*, T& value, const D& standard) { value = standard; }
    template <class T, class D> void Attribute(const char*, T& value, const D& standard) { value = standard; }
    void Word(const char*, bool& value, bool standard) { value = standard; }
    void Clamped(const char*, int& value, int standard, int, int) { value = standard; }
    void DefaultOutside(const char*, double& value, double standard, double, double) { value = standard; }
    void Hundredths(const char*, float& value, float standard, float, float) { value = standard; }
    void OneOrTwo(const char*, int& value, int standard) { value = standard; }

    template <class T> void Count(const char*, const char*, QList<T>& list, int standard, int)
    {
        list.clear();
        for (int i = 0; i < standard; ++i)
            list.append(T());
    }
};

class ConfigWriter
{
public:
    explicit ConfigWriter(XmlWriter& writer) : m_writer(writer) {}

    void Begin(const char* name) { m_writer.BeginElement(name); }
    void End() { m_writer.EndElement(); }

    template <class T, class D> void Item(const char* name, const T& value, const D&)
    {
        m_text.clear();
        fieldtext::Append(m_text, value);
        m_writer.BeginElement(name);
        if (!m_text.empty())
            m_writer.Text(m_text);
        m_writer.EndElement();
    }

    template <class T, class D> void Attribute(const char* name, const T& value, const D&)
    {
        m_text.clear();
        fieldtext::Append(m_text, value);
        m_writer.Attribute(name, m_text);
    }

    void Word(const char* name, bool value, bool) { m_writer.Attribute(name, value ? kTrue : kFalse); }
    void Clamped(const char* name, int value, int standard, int, int) { Item(name, value, standard); }
    void DefaultOutside(const char* name, double value, double standard, double, double)
    {
        Item(name, value, standard);
    }
    void Hundredths(const char* name, float value, float standard, float, float)
    {
        Item(name, double(value) * 100, standard);
    }
    void OneOrTwo(const char* name, int value, int standard) { Item(name, value == 1 ? 1 : 2, standard); }

    template <class T> void Count(const char* name, const char*, const QList<T>& list, int standard, int)
    {
        Item(name, list.size(), standard);
    }

private:
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

    template <class T, class D> void Item(const char* name, T& value, const D&)
    {
        const QDomElement item = Child(name);
        if (!item.isNull())
            Convert(item.text(), value);
    }

    template <class T, class D> void Attribute(const char* name, T& value, const D&)
    {
        const QDomElement& element = m_path.last();
        if (element.hasAttribute(QLatin1String(name)))
            Convert(element.attribute(QLatin1String(name)), value);
    }

    void Word(const char* name, bool& value, bool standard)
    {
        QString word = QLatin1String(value ? kTrue : kFalse);
        Attribute(name, word, standard);
        value = word.trimmed().compare(QLatin1String(kTrue), Qt::CaseInsensitive) == 0;
    }

    void Clamped(const char* name, int& value, int standard, int lowest, int highest)
    {
        Item(name, value, standard);
        value = qBound(lowest, value, highest);
    }

    // A fraction does not read as the whole number expected, and so gives the default too.
    void DefaultOutside(const char* name, double& value, double standard, double lowest, double highest)
    {
        int whole = 0;
        if (!Whole(name, &whole))
            return;
        value = whole < lowest || whole > highest ? standard : whole;
    }

    void Hundredths(const char* name, float& value, float, float lowest, float highest)
    {
        int whole = 0;
        if (Whole(name, &whole))
            value = qBound(lowest, static_cast<float>(whole) / 100, highest);
    }

    void OneOrTwo(const char* name, int& value, int standard)
    {
        Item(name, value, standard);
        value = value == 1 ? 1 : 2;
    }

    // The children count, not what the file says of them.
    template <class T> void Count(const char*, const char* stem, QList<T>& list, int, int most)
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

    bool Whole(const char* name, int* value)
    {
        Item(name, *value, 0);
        return !Child(name).isNull();
    }

    template <class T> static void Convert(const QString& text, T& value)
    {
        const QByteArray utf8 = text.toUtf8();
        fieldtext::Read(std::string_view(utf8.constData(), size_t(utf8.size())), value);
    }

    QVector<QDomElement> m_path;
};

/// The name of a style among those named before, else the one it comes with, else its key.
QString NameOfStyle(const QString& key, const QList<SUiStyle>& named)
{
    for (const SUiStyle& style : named)
        if (style.key == key && !style.name.isEmpty())
            return style.name;
    for (const auto& style : kDefaultUiStyles)
        if (key == QLatin1String(style[0]))
            return QLatin1String(style[1]);
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

/// Takes a key text that names no key back to what stood there before.
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

void SetConfigDefaults(SConfigItems* items)
{
    ConfigDefaults defaults;
    DescribeConfig(defaults, *items);
    RepairStyles(items, {});
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
    ConfigReader reader(root.firstChildElement(QLatin1String(kConfigName)));
    DescribeConfig(reader, read);
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
