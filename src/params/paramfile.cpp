#include "params/paramfile.h"

#include "common/atomicfile.h"
#include "common/dottedaddress.h"
#include "common/failure.h"
#include "common/texts.h"
#include "common/xmldom.h"
#include "layout/sender.h"
#include "params/elementnames.h"
#include "params/elementreader.h"
#include "params/elementwriter.h"

#include <QDomDocument>
#include <QHash>
#include <QStringList>

namespace params {

namespace {

constexpr const char* kProcessor = "Processor_"; ///< and a number from 1 on
constexpr const char* kCheckValue = "CheckValue";
constexpr const char* kSpecifyIp = "bSpecifyIP";
constexpr const char* kProcessorCount = "ProcessorCount";
constexpr int kNamedProcessors = 4; ///< in the message about addresses that no processor of a file has

/// Counts the elements. One without content is written with two tags, but for the root.
class ParamStream : public StreamXmlWriter
{
public:
    using StreamXmlWriter::StreamXmlWriter;

    void BeginElement(std::string_view name) override
    {
        StreamXmlWriter::BeginElement(name);
        m_empty = m_elements++ > 0;
    }
    void Text(std::string_view text) override
    {
        StreamXmlWriter::Text(text);
        m_empty = false;
    }
    void EndElement() override
    {
        if (m_empty)
            Text({});
        StreamXmlWriter::EndElement();
    }
    int GetElements() const { return m_elements; }

private:
    int m_elements = 0;
    bool m_empty = false;
};

/// Fails with `refusal` when no reader would take the file.
bool WriteFile(QIODevice& file, const Family& family, const QVector<Target>& targets, bool matchByIp,
               QString* refusal)
{
    constexpr int rootAttributes = 5; ///< at most
    ParamStream stream(file, family.encoding);
    stream.BeginElement(family.root);
    for (const char* attribute : family.zeroAttributes)
        if (attribute)
            stream.Attribute(attribute, "0");
    stream.Attribute(kCheckValue, "1");
    stream.Attribute(kSpecifyIp, matchByIp ? "1" : "0");
    stream.Attribute(kProcessorCount, std::to_string(targets.size()));
    ElementWriter writer(stream);
    for (int i = 0; i < targets.size(); ++i)
        if (targets[i].sender)
            writer.Group(FieldName(kProcessor) + (i + 1), [&] { family.write(writer, *targets[i].sender); });
    stream.EndElement();
    if (stream.GetElements() + rootAttributes > kMaxTreeNodes)
        return Fail(refusal, Texts::tr("文件过大。"));
    return stream.Flush() || Fail(refusal, stream.GetRefusal());
}

/// False, with the reason, when the file cannot be read or is of the other family.
bool Load(const Family& family, const QString& path, QDomDocument& document, QString* why)
{
    if (!LoadXmlDom(path, document, why))
        return false;
    return document.documentElement().tagName() == QLatin1String(family.root)
           || Fail(why, Texts::tr("不是该类型的参数文件。"));
}

Outcome ReadSingle(const Family& family, const QDomDocument& document, CSender* sender)
{
    if (!sender)
        return NoSender();
    ElementReader reader(document.documentElement());
    Outcome outcome;
    reader.OwnOrGroup(FieldName(kProcessor) + 1, [&] { outcome = family.readAlone(reader, *sender); });
    return outcome;
}

/// The sender takes the processor of that number.
quint32 ReadNumbered(const Family& family, ElementReader& reader, int number, CSender& sender)
{
    quint32 result = kImportFailed;
    reader.Group(FieldName(kProcessor) + number, [&] { result = family.read(reader, sender); });
    return result;
}

Outcome ReadByPosition(const Family& family, ElementReader& reader, const QVector<Target>& targets)
{
    for (int i = 0; i < targets.size(); ++i) {
        const quint32 result = ReadNumbered(family, reader, i + 1, *targets[i].sender);
        if (result != kDone)
            return Told(result);
    }
    return {};
}

/// The numbers of a file's processors by address, the first of equal ones. Address 0 stands for none.
QHash<quint32, int> NumbersByIp(ElementReader& reader, int count)
{
    QHash<quint32, int> numbers;
    reader.EachNumbered(kProcessor, 1, count, [&](int number) {
        const quint32 ip = GetIntFromOctString(reader.Value<QString>(kNetIp));
        if (ip != 0 && !numbers.contains(ip))
            numbers.insert(ip, number);
    });
    return numbers;
}

Outcome ReadByIp(const Family& family, ElementReader& reader, int count, const QVector<Target>& targets)
{
    const QHash<quint32, int> numbers = NumbersByIp(reader, count);
    QStringList unmatched; ///< as the user counts senders
    for (const Target& target : targets) {
        const int number = numbers.value(static_cast<quint32>(target.sender->GetNetSenderIP()));
        if (number == 0) {
            unmatched.append(QString::number(target.index + 1));
            continue;
        }
        const quint32 result = ReadNumbered(family, reader, number, *target.sender);
        if (result != kDone)
            return Told(result);
    }
    if (unmatched.isEmpty())
        return {};
    const QString list = unmatched.mid(0, kNamedProcessors).join(QLatin1Char(','))
                         + QLatin1String(unmatched.size() >= kNamedProcessors ? "..." : "");
    return Told(unmatched.size() == targets.size() ? kFailed : kDone,
                Texts::tr("主控%1未找到对应IP的主控参数。").arg(list));
}

} // namespace

Outcome NoSender()
{
    return {kFailed, Texts::tr("找不到主控。"), false};
}

Outcome Export(const Family& family, const QVector<Target>& targets, bool matchByIp, const QString& path)
{
    QString error;
    QString refusal;
    const bool saved = ReplaceFile(
        path, [&](QIODevice& file) { return WriteFile(file, family, targets, matchByIp, &refusal); }, &error);
    return saved ? Outcome() : Outcome{kFailed, refusal.isEmpty() ? error : refusal, false};
}

Outcome Import(const Family& family, const QVector<Target>& targets, CSender* single, bool matchByIp,
               const QString& path)
{
    QDomDocument document;
    QString why;
    if (!Load(family, path, document, &why))
        return {kFailed, why, false};
    const QDomElement root = document.documentElement();
    if (!root.hasAttribute(QLatin1String(kCheckValue)))
        return ReadSingle(family, document, single);
    if (matchByIp != (root.attribute(QLatin1String(kSpecifyIp)).toInt() != 0))
        return Told(kFailed, Texts::tr("不可导入，无法匹配对应IP的主控参数。"));
    const int count = root.attribute(QLatin1String(kProcessorCount)).toInt();
    if (count < 1)
        return {kFailed, Texts::tr("文件中没有主控参数。"), false};
    for (const Target& target : targets)
        if (!target.sender)
            return NoSender();
    ElementReader reader(root);
    return matchByIp ? ReadByIp(family, reader, count, targets) : ReadByPosition(family, reader, targets);
}

Outcome ImportSingle(const Family& family, CSender* sender, const QString& path)
{
    if (!sender)
        return NoSender();
    QDomDocument document;
    QString why;
    if (!Load(family, path, document, &why))
        return {kFailed, why, false};
    return ReadSingle(family, document, sender);
}

quint32 GetIntFromOctString(const QString& text)
{
    if (const auto ip = ReadDottedAddress(text))
        return *ip;
    const QString number = text.trimmed();
    return number.startsWith(QLatin1Char('+')) ? 0 : number.toUInt();
}

} // namespace params
