#include "formats/samplexml.h"

#include "common/xmldom.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QStringList>
#include <QUuid>

namespace {

using Values = QMap<QString, QStringList>; ///< by path

QDomDocument Parsed(const QByteArray& xml)
{
    QDomDocument document;
    QString error;
    EXPECT_TRUE(ParseXmlDom(xml, document, &error)) << error.toStdString();
    return document;
}

void Collect(const QDomElement& element, const QString& parent, Values& values)
{
    static const QRegularExpression number("[_\\d]*$"_s);
    const QString path = parent + QLatin1Char('/') + element.tagName().remove(number);
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i)
        values[path + QLatin1Char('@') + attributes.item(i).nodeName()] += attributes.item(i).nodeValue();
    if (attributes.isEmpty() && element.firstChildElement().isNull())
        values[path] += element.text();
    for (auto child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        Collect(child, path, values);
}

Values ValuesOf(const QByteArray& xml)
{
    Values values;
    Collect(Parsed(xml).documentElement(), QString(), values);
    return values;
}

void Empty(QDomElement element, const QRegularExpression& kept)
{
    QStringList names; // the map changes as attributes go
    for (int i = 0; i < element.attributes().count(); ++i)
        names += element.attributes().item(i).nodeName();
    for (const QString& name : names)
        if (!kept.match(name).hasMatch())
            element.removeAttribute(name);
    QDomElement child = element.firstChildElement();
    if (child.isNull() && !kept.match(element.tagName()).hasMatch())
        element.removeChild(element.firstChild());
    for (; !child.isNull(); child = child.nextSiblingElement())
        Empty(child, kept);
}

} // namespace

QByteArray FullSample(const char* name)
{
    return ReadFile(SamplePath("full/") + QString::fromLatin1(name));
}

QByteArray Told(const char* name)
{
    static const QRegularExpression lineName("^[^:\\n]*: ?"_s, QRegularExpression::MultilineOption);
    return QString::fromUtf8(FullSample(name)).remove(lineName).toUtf8();
}

std::string FirstDifference(const QByteArray& a, const QByteArray& b)
{
    const auto x = a.split('\n');
    const auto y = b.split('\n');
    for (int i = 0; i < qMax(x.size(), y.size()); ++i)
        if (x.value(i) != y.value(i) || i >= qMin(x.size(), y.size()))
            return "line " + std::to_string(i + 1) + ": " + x.value(i).toStdString()
                   + "\nand: " + y.value(i).toStdString();
    return {};
}

QByteArray Hollow(const QByteArray& sample, const QRegularExpression& kept)
{
    const QDomDocument document = Parsed(sample);
    Empty(document.documentElement(), kept);
    return document.toByteArray();
}

std::string NamesWithoutOwnValue(const QByteArray& sample, const QByteArray& hollow,
                                 const QRegularExpression& passedOver)
{
    const Values values = ValuesOf(sample);
    const Values without = ValuesOf(hollow);
    std::string names;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
        const QString name = value.key().section(QRegularExpression("[/@]"_s), -1);
        const QStringList others = without.value(value.key());
        const bool own = std::any_of(value->begin(), value->end(),
                                     [&](const QString& text) { return !others.contains(text); });
        if (!own && !passedOver.match(name).hasMatch())
            names += value.key().toStdString() + ' ';
    }
    return names;
}

std::string ValuesBesideZero(const QByteArray& xml, const QRegularExpression& passedOver)
{
    QStringList found;
    const Values values = ValuesOf(xml);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
        const QString name = value.key().section(QRegularExpression("[/@]"_s), -1);
        for (const QString& text : *value)
            if (!text.isEmpty() && text != "0"_s && QUuid(text).isNull() && !text.startsWith("{0000"_s)
                && !passedOver.match(name).hasMatch())
                found.append(name + QLatin1Char('=') + text);
    }
    found.removeDuplicates();
    found.sort();
    return found.join(QLatin1Char(' ')).toStdString();
}
