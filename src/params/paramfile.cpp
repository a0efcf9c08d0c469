#include "params/paramfile.h"

#include "common/atomicfile.h"
#include "common/failure.h"
#include "common/texts.h"
#include "common/xmldom.h"
#include "common/xmlreader.h"
#include "common/xmlwriter.h"
#include "custommessagebox.h"
#include "layout/sender.h"
#include "params/elementfields.h"
#include "params/elementnames.h"
#include "params/paramresult.h"
#include "params/paramslookup.h"
#include "params/processorelement.h"
#include "params/senderelement.h"

#include <QDomDocument>
#include <QHash>
#include <QVector>

namespace params {

namespace {

constexpr const char* kProcessor = "Processor_"; ///< and a number from 1 on
constexpr const char* kCheckValue = "CheckValue";
constexpr const char* kSpecifyIp = "bSpecifyIP";
constexpr const char* kProcessorCount = "ProcessorCount";
constexpr int kNamedProcessors = 4; ///< in the message about addresses that no processor of a file has

/// What tells the two families apart.
struct Family
{
    const char* root;
    const char* encoding; ///< as the declaration names it
    QVector<const char*> zeroAttributes;
    quint32 (*write)(QDomDocument&, QDomElement*, const CSender*);
    quint32 (*read)(QDomDocument&, const QDomElement*, CSender*);
    quint32 (*importSingle)(ParamsLookup&, const QString&, const QUuid&);
};

const Family& SenderFamily()
{
    static const Family family{kSenderFileRoot,       "utf-8",          {}, WriteSingleSenderParam,
                               ReadSingleSenderParam, ImportSenderParam};
    return family;
}

const Family& ProcessorFamily()
{
    static const Family family{kProcessorFileRoot,
                               "UTF-8",
                               {"ParamFileMainVersion", "DeviceReserveFlag"},
                               WriteSingleProcessorParam,
                               ReadSingleProcessorParam,
                               ImportProcessorParam};
    return family;
}

QString ProcessorName(int number)
{
    return QLatin1String(kProcessor) + QString::number(number);
}

/// The senders meant by an id, or by the choice for a null one.
QList<int> ChosenSenders(const ParamsLookup& lookup, const QUuid& id)
{
    return id.isNull() ? lookup.Prepared().senders : QList<int>{lookup.SenderIndex(id)};
}

quint32 NoSender(ParamsLookup& lookup)
{
    lookup.SetFileError(Texts::tr("找不到主控。"));
    return kFailed;
}

std::string Utf8(const QString& text)
{
    return text.toStdString();
}

/// An element of ours: children or one text, no attributes. Returns how many elements it is.
int WriteElement(XmlWriter& writer, const QDomElement& element)
{
    int count = 1;
    writer.BeginElement(Utf8(element.tagName()));
    QDomElement child = element.firstChildElement();
    if (child.isNull())
        writer.Text(Utf8(element.text()));
    for (; !child.isNull(); child = child.nextSiblingElement())
        count += WriteElement(writer, child);
    writer.EndElement();
    return count;
}

/// A tree keeps no order of attributes, so the root is written by hand. Fails with `refusal` when no reader
/// would take the file.
bool WriteFile(QIODevice& file, const Family& family, bool matchByIp, int count,
               const QDomElement& processors, QString* refusal)
{
    constexpr int rootNodes = 6; ///< at most: the root and its attributes
    StreamXmlWriter writer(file, family.encoding);
    writer.BeginElement(family.root);
    for (const char* attribute : family.zeroAttributes)
        writer.Attribute(attribute, "0");
    writer.Attribute(kCheckValue, "1");
    writer.Attribute(kSpecifyIp, matchByIp ? "1" : "0");
    writer.Attribute(kProcessorCount, std::to_string(count));
    int nodes = rootNodes;
    for (QDomElement element = processors.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement())
        nodes += WriteElement(writer, element);
    writer.EndElement();
    if (nodes > kMaxTreeNodes)
        return Fail(refusal, Texts::tr("文件过大。"));
    return writer.Flush() || Fail(refusal, writer.GetRefusal());
}

quint32 Export(const Family& family, ParamsLookup& lookup, const QString& path, const QUuid& id)
{
    const QList<int> chosen = ChosenSenders(lookup, id);
    if (!id.isNull() && !lookup.Sender(chosen.first()))
        return NoSender(lookup);
    QDomDocument document;
    QDomElement processors = document.createElement(QLatin1String(family.root));
    for (int i = 0; i < chosen.size(); ++i) {
        const CSender* sender = lookup.Sender(chosen[i]);
        if (!sender)
            continue;
        QDomElement element = document.createElement(ProcessorName(i + 1));
        processors.appendChild(element);
        family.write(document, &element, sender);
    }

    const bool matchByIp = lookup.Prepared().matchByIp;
    QString error;
    QString refusal;
    const bool saved = ReplaceFile(
        path,
        [&](QIODevice& file) {
            return WriteFile(file, family, matchByIp, chosen.size(), processors, &refusal);
        },
        &error);
    lookup.SetFileError(saved ? QString() : refusal.isEmpty() ? error : refusal);
    return saved ? kDone : kFailed;
}

/// Null, with the reason told, when the file cannot be read or is of the other family.
QDomElement LoadRoot(const Family& family, ParamsLookup& lookup, const QString& path, QDomDocument& document)
{
    QString error;
    if (!LoadXmlDom(path, document, &error)) {
        lookup.SetFileError(error);
        return {};
    }
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String(family.root)) {
        lookup.SetFileError(Texts::tr("不是该类型的参数文件。"));
        return {};
    }
    lookup.SetFileError(QString());
    return root;
}

/// Without addresses: the chosen senders take the processors of the file in order.
quint32 ImportByPosition(const Family& family, QDomDocument& document, const QVector<CSender*>& senders)
{
    const ElementReader root(document.documentElement());
    for (int i = 0; i < senders.size(); ++i) {
        const QDomElement element = root.Child(ProcessorName(i + 1));
        const quint32 result = family.read(document, &element, senders[i]);
        if (result != kDone)
            return result;
    }
    return kDone;
}

/// The processors of a file by address, the first of equal ones. Address 0 stands for none.
QHash<quint32, QDomElement> ProcessorsByIp(const QDomElement& root, int count)
{
    QHash<quint32, QDomElement> processors;
    const auto elements = ElementReader(root).NumberedChildren(QLatin1String(kProcessor), 1, count);
    for (const auto& numbered : elements) {
        const QString text = numbered.second.firstChildElement(QLatin1String(kNetIp)).text();
        const quint32 ip = GetIntFromOctString(text);
        if (ip != 0 && !processors.contains(ip))
            processors.insert(ip, numbered.second);
    }
    return processors;
}

/// Tells the user, and whoever asks for the reason later.
void Tell(ParamsLookup& lookup, const QString& text)
{
    lookup.SetFileError(text);
    CCustomMessageBox::information(nullptr, text);
}

quint32 Told(ParamsLookup& lookup, quint32 result)
{
    const QString text = ImportResultText(result);
    if (!text.isEmpty())
        Tell(lookup, text);
    return result;
}

void TellUnmatched(ParamsLookup& lookup, const QList<int>& senders)
{
    QStringList numbers;
    for (int index : senders.mid(0, kNamedProcessors))
        numbers.append(QString::number(index + 1));
    QString list = numbers.join(QLatin1Char(','));
    if (senders.size() >= kNamedProcessors)
        list += QStringLiteral("...");
    Tell(lookup, Texts::tr("主控%1未找到对应IP的主控参数。").arg(list));
}

quint32 ImportByIp(const Family& family, ParamsLookup& lookup, QDomDocument& document, int count,
                   const QList<int>& chosen, const QVector<CSender*>& senders)
{
    const QHash<quint32, QDomElement> processors = ProcessorsByIp(document.documentElement(), count);
    QList<int> unmatched;
    for (int i = 0; i < senders.size(); ++i) {
        const auto found = processors.constFind(static_cast<quint32>(senders[i]->GetNetSenderIP()));
        if (found == processors.constEnd()) {
            unmatched.append(chosen[i]);
            continue;
        }
        const quint32 result = family.read(document, &*found, senders[i]);
        if (result != kDone)
            return result;
    }
    if (!unmatched.isEmpty())
        TellUnmatched(lookup, unmatched);
    return unmatched.size() == senders.size() && !senders.isEmpty() ? kFailed : kDone;
}

quint32 ImportMulti(const Family& family, ParamsLookup& lookup, const QString& path, const QUuid& id)
{
    QDomDocument document;
    const QDomElement root = LoadRoot(family, lookup, path, document);
    if (root.isNull())
        return kFailed;
    if (!root.hasAttribute(QLatin1String(kCheckValue)))
        return family.importSingle(lookup, path, id);

    const bool matchByIp = root.attribute(QLatin1String(kSpecifyIp)).toInt() != 0;
    if (matchByIp != lookup.Prepared().matchByIp) {
        Tell(lookup, Texts::tr("不可导入，无法匹配对应IP的主控参数。"));
        return kFailed;
    }
    const int count = root.attribute(QLatin1String(kProcessorCount)).toInt();
    if (count < 1) {
        lookup.SetFileError(Texts::tr("文件中没有主控参数。"));
        return kFailed;
    }

    const QList<int> chosen = ChosenSenders(lookup, id);
    QVector<CSender*> senders;
    for (int index : chosen) {
        senders.append(lookup.Sender(index));
        if (!senders.last())
            return NoSender(lookup);
    }
    const quint32 result = matchByIp ? ImportByIp(family, lookup, document, count, chosen, senders)
                                     : ImportByPosition(family, document, senders);
    return Told(lookup, result);
}

/// The processor of a file of one sender.
QDomElement SingleProcessor(const QDomElement& root)
{
    const QDomElement element = root.firstChildElement(ProcessorName(1));
    return element.isNull() ? root : element;
}

} // namespace

quint32 ExportMutiSenderParam(ParamsLookup& lookup, const QString& path, const QUuid& id)
{
    return Export(SenderFamily(), lookup, path, id);
}

quint32 ExportMutiProcessorParam(ParamsLookup& lookup, const QString& path, const QUuid& id)
{
    return Export(ProcessorFamily(), lookup, path, id);
}

quint32 ImportMutiSenderParam(ParamsLookup& lookup, const QString& path, const QUuid& id)
{
    return ImportMulti(SenderFamily(), lookup, path, id);
}

quint32 ImportMutiProcessorParam(ParamsLookup& lookup, const QString& path, const QUuid& id)
{
    return ImportMulti(ProcessorFamily(), lookup, path, id);
}

quint32 ImportSenderParam(ParamsLookup& lookup, const QString& path, const QUuid& id)
{
    CSender* sender = lookup.Sender(lookup.SenderIndex(id));
    if (!sender)
        return NoSender(lookup);
    QDomDocument document;
    const QDomElement root = LoadRoot(SenderFamily(), lookup, path, document);
    if (root.isNull())
        return kFailed;
    const QDomElement element = SingleProcessor(root);
    return Told(lookup, ReadSingleSenderParam(document, &element, sender));
}

quint32 ImportProcessorParam(ParamsLookup& lookup, const QString& path, const QUuid& id)
{
    CSender* sender = lookup.Sender(lookup.SenderIndex(id));
    if (!sender)
        return NoSender(lookup);
    QDomDocument document;
    const QDomElement root = LoadRoot(ProcessorFamily(), lookup, path, document);
    if (root.isNull())
        return kFailed;
    // As a result the basic block knows only done and failed; the reason is in the message.
    const quint32 result = ImportProcessorBlocks(document, SingleProcessor(root), sender);
    return Told(lookup, result) == kDone ? kDone : kFailed;
}

quint32 GetIntFromOctString(const QString& text)
{
    const QStringList octets = text.trimmed().split(QLatin1Char('.'));
    const auto isDecimal = [](const QString& digits) {
        for (const QChar c : digits)
            if (c < QLatin1Char('0') || c > QLatin1Char('9'))
                return false;
        return !digits.isEmpty();
    };
    quint32 ip = 0;
    for (const QString& octet : octets) {
        bool fits = false;
        const quint32 value = octet.toUInt(&fits);
        if (!isDecimal(octet) || !fits || (octets.size() == 4 && value > 255))
            return 0;
        ip = octets.size() == 4 ? ip << 8 | value : value;
    }
    return octets.size() == 4 || octets.size() == 1 ? ip : 0;
}

} // namespace params
