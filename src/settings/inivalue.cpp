#include "settings/inivalue.h"

#include <QColor>
#include <QDataStream>
#include <QDateTime>
#include <QRect>
#include <QVector>

#include <algorithm>
#include <charconv>
#include <string_view>

namespace {

constexpr std::string_view kEscapes = "abfnrtv\"\\'?";
constexpr std::string_view kEscaped = "\a\b\f\n\r\t\v\"\\'?";
constexpr size_t kWrittenEscapes = 9; ///< the others are only read

constexpr quint32 kQt4Float = 135; // values are streamed with the type numbers of Qt 4
constexpr quint32 kStreamedTypes[] = {QMetaType::QDate,  QMetaType::QTime,  QMetaType::QDateTime,
                                      QMetaType::QUrl,   QMetaType::QRectF, QMetaType::QSizeF,
                                      QMetaType::QLine,  QMetaType::QLineF, QMetaType::QPointF,
                                      QMetaType::QColor, kQt4Float};

int SkipBlanks(const QByteArray& text, int at)
{
    while (at < text.size() && (text[at] == ' ' || text[at] == '\t'))
        ++at;
    return at;
}

/// The character of an escape; empty when it only continues the line. `at` stands behind the backslash.
QString ReadEscape(const QByteArray& text, int* at)
{
    const char code = *at < text.size() ? text[*at] : '\0';
    const size_t known = kEscapes.find(code);
    ++*at;
    if (known != std::string_view::npos)
        return QString(QLatin1Char(kEscaped[known]));
    const char* begin = text.constData() + *at - (code == 'x' ? 0 : 1);
    quint64 number = 0; // its lowest 16 bits count
    const char* end = std::from_chars(begin, text.constEnd(), number, code == 'x' ? 16 : 8).ptr;
    if (end == begin) {
        *at += code == '\r' && *at < text.size() && text[*at] == '\n';
        return {};
    }
    *at = static_cast<int>(end - text.constData());
    return QChar(static_cast<ushort>(number));
}

/// The texts of a list. A value that is no list gives one text.
QStringList ReadTexts(const QByteArray& value)
{
    QStringList texts{QString()};
    bool inQuotes = false;
    bool wasQuoted = false;
    int kept = 0; // as many characters of the last text stay when blanks are cut off
    const auto cutBlanks = [&] {
        QString& text = texts.last();
        while (!wasQuoted && text.size() > kept
               && (text.endsWith(QLatin1Char(' ')) || text.endsWith(QLatin1Char('\t'))))
            text.chop(1);
    };
    for (int at = SkipBlanks(value, 0); at < value.size();) {
        const int begin = at++;
        if (value[begin] == '\\') {
            const QString character = ReadEscape(value, &at);
            texts.last() += character;
            if (!character.isEmpty())
                kept = texts.last().size();
        } else if (value[begin] == '"') {
            wasQuoted = true;
            inQuotes = !inQuotes;
            at = inQuotes ? at : SkipBlanks(value, at);
        } else if (value[begin] == ',' && !inQuotes) {
            cutBlanks();
            texts.append(QString());
            wasQuoted = false;
            kept = 0;
            at = SkipBlanks(value, at);
        } else {
            while (at < value.size() && value[at] != '\\' && value[at] != '"' && value[at] != ',')
                ++at;
            const char* plain = value.constData() + begin;
            texts.last() += QString::fromUtf8(plain, at - begin);
        }
    }
    cutBlanks();
    return texts;
}

QVariant FromStream(const QByteArray& bytes, QDataStream::Version version)
{
    constexpr int zoneAt = 17; // in a date with time; Qt would look for a file with the name of a time zone
    QDataStream stream(bytes);
    stream.setVersion(version);
    quint32 type = 0;
    stream >> type;
    const bool isPlain = version == QDataStream::Qt_4_0
                             ? std::count(std::begin(kStreamedTypes), std::end(kStreamedTypes), type) > 0
                             : type == QMetaType::QDateTime && bytes.size() > zoneAt
                                   && uchar(bytes[zoneAt]) <= Qt::OffsetFromUTC;
    QVariant value;
    stream.device()->seek(0);
    if (isPlain)
        stream >> value;
    return stream.status() == QDataStream::Ok ? value : QVariant();
}

/// Whether a text is "@Name(inside)", and what stands inside.
bool IsTyped(const QString& text, const char* name, QString* inside)
{
    const QString begin = QLatin1Char('@') + QLatin1String(name) + QLatin1Char('(');
    *inside = text.mid(begin.size(), text.size() - begin.size() - 1);
    return text.startsWith(begin) && text.endsWith(QLatin1Char(')'));
}

bool IsTyped(const QString& text, const char* name, int count, QVector<int>* numbers)
{
    QString inside;
    const bool isTyped = IsTyped(text, name, &inside);
    numbers->clear();
    for (const QString& word : inside.split(QLatin1Char(' ')))
        numbers->append(word.toInt());
    return isTyped && numbers->size() == count;
}

QVariant FromText(const QString& text)
{
    if (!text.startsWith(QLatin1Char('@')))
        return text;
    QString inside;
    QVector<int> n;
    if (IsTyped(text, "ByteArray", &inside))
        return inside.toLatin1();
    if (IsTyped(text, "String", &inside))
        return inside;
    if (IsTyped(text, "Variant", &inside))
        return FromStream(inside.toLatin1(), QDataStream::Qt_4_0);
    if (IsTyped(text, "DateTime", &inside))
        return FromStream(inside.toLatin1(), QDataStream::Qt_5_6);
    if (IsTyped(text, "Rect", 4, &n))
        return QRect(n[0], n[1], n[2], n[3]);
    if (IsTyped(text, "Size", 2, &n))
        return QSize(n[0], n[1]);
    if (IsTyped(text, "Point", 2, &n))
        return QPoint(n[0], n[1]);
    if (text == QLatin1String("@Invalid()"))
        return {};
    return text.startsWith(QLatin1String("@@")) ? text.mid(1) : text;
}

QString Typed(const char* name, const QByteArray& inside)
{
    return QLatin1Char('@') + QLatin1String(name) + QLatin1Char('(')
           + QLatin1String(inside.constData(), inside.size()) + QLatin1Char(')');
}

std::optional<QString> ToText(const QVariant& value)
{
    const int type = value.userType();
    if (type == QMetaType::UnknownType)
        return QStringLiteral("@Invalid()");
    if (type == QMetaType::QByteArray)
        return Typed("ByteArray", value.toByteArray());
    if (type == QMetaType::QSize)
        return QString::asprintf("@Size(%d %d)", value.toSize().width(), value.toSize().height());
    if (type == QMetaType::QPoint)
        return QString::asprintf("@Point(%d %d)", value.toPoint().x(), value.toPoint().y());
    if (type == QMetaType::QRect) {
        const QRect rect = value.toRect();
        return QString::asprintf("@Rect(%d %d %d %d)", rect.x(), rect.y(), rect.width(), rect.height());
    }
    const bool isNumber = type <= QMetaType::Double; // or a flag
    if (isNumber || type == QMetaType::QString || type == QMetaType::QKeySequence) {
        const QString text = value.toString();
        if (text.contains(QChar::Null))
            return QStringLiteral("@String(%1)").arg(text);
        return text.startsWith(QLatin1Char('@')) ? QLatin1Char('@') + text : text;
    }
    const bool isDateTime = type == QMetaType::QDateTime;
    const auto version = isDateTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << value;
    if (!FromStream(bytes, version).isValid())
        return {};
    return Typed(isDateTime ? "DateTime" : "Variant", bytes);
}

QByteArray Escaped(const QString& text)
{
    QByteArray escaped;
    bool afterNumber = false; // a digit that follows would belong to the number
    for (const QChar c : text) {
        const int code = c.unicode();
        const size_t known = kEscaped.substr(0, kWrittenEscapes).find(c.toLatin1());
        const bool isPlain = code >= ' ' && code < 0x7f && !(afterNumber && std::isxdigit(code));
        if (known != std::string_view::npos)
            escaped.append('\\').append(kEscapes[known]);
        else if (isPlain)
            escaped += c.toLatin1();
        else
            escaped += "\\x" + QByteArray::number(code, 16);
        afterNumber = known == std::string_view::npos && !isPlain;
    }
    const std::string_view view(escaped.constData(), size_t(escaped.size()));
    const bool needsQuotes = escaped.startsWith(' ') || escaped.endsWith(' ')
                             || view.find_first_of(";,=") != std::string_view::npos;
    return needsQuotes ? '"' + escaped + '"' : escaped;
}

} // namespace

QString KeyFromIni(const QByteArray& text)
{
    QString key;
    for (int at = 0; at < text.size(); ++at) {
        const int digits = text.mid(at, 2) == "%U" ? 4 : 2;
        const int first = at + digits / 2;
        bool isNumber = text[at] == '%' && first + digits <= text.size();
        const int number = isNumber ? text.mid(first, digits).toInt(&isNumber, 16) : 0;
        key += isNumber ? QChar(number) : text[at] == '\\' ? QLatin1Char('/') : QLatin1Char(text[at]);
        at = isNumber ? first + digits - 1 : at;
    }
    return key;
}

QByteArray KeyToIni(const QString& key)
{
    QString text;
    for (const QChar c : key) {
        const uint code = c.unicode();
        if (c == QLatin1Char('/'))
            text += QLatin1Char('\\');
        else if (code < 0x80 && (c.isLetterOrNumber() || QStringLiteral("_-.").contains(c)))
            text += c;
        else
            text += QString::asprintf(code <= 0xff ? "%%%02X" : "%%U%04X", code);
    }
    return text.toLatin1();
}

QVariant ValueFromIni(const QByteArray& text)
{
    const QStringList texts = ReadTexts(text);
    if (texts.size() == 1)
        return FromText(texts.first());
    QVariantList values;
    bool areTexts = true;
    for (const QString& item : texts) {
        values.append(FromText(item));
        areTexts = areTexts && (!item.startsWith(QLatin1Char('@')) || item.startsWith(QLatin1String("@@")));
    }
    return areTexts ? QVariant(QVariant(values).toStringList()) : QVariant(values);
}

std::optional<QByteArray> ValueToIni(const QVariant& value)
{
    const int type = value.userType();
    QVariantList items = value.toList();
    if (type != QMetaType::QStringList && (type != QMetaType::QVariantList || items.size() == 1))
        items = {value};
    else if (items.isEmpty())
        items = {QVariant()};
    QByteArrayList texts;
    for (const QVariant& item : qAsConst(items)) {
        const std::optional<QString> text = ToText(item);
        if (!text)
            return {};
        texts.append(Escaped(*text));
    }
    return texts.join(", ");
}
