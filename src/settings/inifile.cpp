#include "settings/inifile.h"

#include "common/atomicfile.h"
#include "common/inputfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMap>

namespace {

constexpr int kNone = -1;
constexpr int kMaxSectionBytes = 4096; ///< each key of a section is kept with its name

struct Span
{
    int begin = 0;
    int end = 0;
};

struct IniText
{
    QByteArray text;
    QMap<QString, Span> values;   ///< by key; the last one of a key counts
    QHash<QString, int> sections; ///< by "name/": where a new line belongs

    QByteArray Value(const Span& span) const { return text.mid(span.begin, span.end - span.begin); }
};

struct Edit
{
    int replaced = 0;
    QByteArray text;
};

/// As QSettings takes a key that it is given.
QString Normalised(const QString& key)
{
    return key.split(QLatin1Char('/'), Qt::SkipEmptyParts).join(QLatin1Char('/'));
}

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

int SkipLine(const QByteArray& text, int at)
{
    while (at < text.size() && !IsLineEnd(text[at]))
        ++at;
    return at;
}

/// The begin of the next line that is neither blank nor a comment.
int SkipToLine(const QByteArray& text, int at)
{
    while (at < text.size()
           && (text[at] == ' ' || text[at] == '\t' || IsLineEnd(text[at]) || text[at] == ';'))
        at = text[at] == ';' ? SkipLine(text, at) : at + 1;
    return at;
}

/// The end of a line, in front of a comment. A line end inside of quotes or behind a backslash does not
/// count. kNone when no end comes.
int FindEnd(const QByteArray& text, int at, int* equals)
{
    *equals = kNone;
    for (bool inQuotes = false; at < text.size(); ++at) {
        const char c = text[at];
        if (!inQuotes && (IsLineEnd(c) || c == ';'))
            return at;
        if (c == '=' && !inQuotes && *equals == kNone)
            *equals = at;
        else if (c == '"')
            inQuotes = !inQuotes;
        else if (c == '\\')
            at += text.mid(at + 1, 2) == "\r\n" ? 2 : 1;
    }
    return kNone;
}

/// "name/" of a section; empty for "[General]", which holds the keys without a section.
QString SectionName(const QByteArray& header)
{
    if (header.compare("general", Qt::CaseInsensitive) == 0)
        return {};
    const bool isEscaped = header.compare("%general", Qt::CaseInsensitive) == 0;
    return KeyFromIni(isEscaped ? header.mid(1) : header) + QLatin1Char('/');
}

QByteArray SectionHeader(const QString& name)
{
    const QByteArray header = name.isEmpty() ? "General" : KeyToIni(name.chopped(1));
    return (!name.isEmpty() && SectionName(header).isEmpty() ? "[%" : "[") + header + "]\n";
}

bool Parse(IniText* ini)
{
    QByteArray& text = ini->text;
    const int begin = text.startsWith("\xef\xbb\xbf") ? 3 : 0; // behind a byte order mark
    if (!text.isEmpty() && !IsLineEnd(text.back()))
        text += '\n';
    QString section;
    int end = 0;
    for (int at = SkipToLine(text, begin); at < text.size(); at = SkipToLine(text, end)) {
        int keyEnd = kNone;
        end = FindEnd(text, at, &keyEnd);
        const bool isHeader = text[at] == '[';
        if (isHeader)
            keyEnd = text.indexOf(']', at);
        if (keyEnd == kNone || keyEnd >= end || (isHeader && keyEnd - at > kMaxSectionBytes))
            return false;
        if (isHeader)
            section = SectionName(text.mid(at + 1, keyEnd - at - 1).trimmed());
        else
            ini->values.insert(section + KeyFromIni(text.mid(at, keyEnd - at).trimmed()), {keyEnd + 1, end});
        const int lineEnd = SkipLine(text, end);
        ini->sections.insert(section, lineEnd + (text.mid(lineEnd, 2) == "\r\n" ? 2 : 1));
    }
    return true;
}

bool ReadIni(const QString& path, IniText* ini)
{
    return (!QFile::exists(path) || ReadInput(path, kMaxIniBytes, &ini->text)) && Parse(ini);
}

/// The text with these values; empty when one of them cannot be written.
QByteArray Changed(const IniText& ini, const QVariantMap& values)
{
    QMap<int, Edit> edits;
    QMap<QString, QByteArray> added; // lines of new sections
    for (auto value = values.begin(); value != values.end(); ++value) {
        const QString key = Normalised(value.key());
        const std::optional<QByteArray> text = ValueToIni(*value);
        if (key.isEmpty() || !text)
            return {};
        const auto old = ini.values.find(key);
        if (old != ini.values.end()) {
            // A value that is written in another form, or that is not read, stays as it is.
            if (ValueToIni(ValueFromIni(ini.Value(*old))) != text)
                edits.insert(old->begin, {old->end - old->begin, *text});
            continue;
        }
        const int name = key.indexOf(QLatin1Char('/')) + 1;
        const auto section = ini.sections.find(key.left(name));
        QByteArray& lines = section == ini.sections.end() ? added[key.left(name)] : edits[*section].text;
        lines += KeyToIni(key.mid(name)) + '=' + *text + '\n';
    }

    QByteArray changed;
    int at = 0;
    for (auto edit = edits.begin(); edit != edits.end(); at = edit.key() + edit->replaced, ++edit)
        changed += ini.text.mid(at, edit.key() - at) + edit->text;
    changed += ini.text.mid(at);
    for (auto section = added.begin(); section != added.end(); ++section)
        changed += (changed.isEmpty() ? "" : "\n") + SectionHeader(section.key()) + *section;
    return changed;
}

} // namespace

bool ReadIniValues(const QString& path, QVariantMap* values)
{
    IniText ini;
    if (!ReadIni(path, &ini))
        return false;
    for (auto value = ini.values.begin(); value != ini.values.end(); ++value)
        if (!value.key().isEmpty() && value.key() == Normalised(value.key()))
            values->insert(values->cend(), value.key(), ValueFromIni(ini.Value(*value)));
    return true;
}

bool WriteIniValues(const QString& path, const QVariantMap& values)
{
    if (values.isEmpty())
        return true;
    QDir().mkpath(QFileInfo(path).path());
    // Reading under the lock of the replacement keeps two programs from undoing what the other one changed.
    return ReplaceFile(path, [&](QIODevice& file) {
        IniText ini;
        const QByteArray changed = ReadIni(path, &ini) ? Changed(ini, values) : QByteArray();
        return !changed.isEmpty() && changed.size() <= kMaxIniBytes && file.write(changed) == changed.size();
    });
}
