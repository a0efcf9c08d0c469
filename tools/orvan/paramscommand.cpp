#include "command.h"
#include "console.h"
#include "inputfile.h"

#include <OrvanData/orvandata.h>
#include <orvantools/printable.h>

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QXmlStreamReader>

namespace {

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
}

/// "SenderParams" or "DeviceParams", the two families.
QString RootName(const QString& path)
{
    QFile file(path);
    QXmlStreamReader xml(&file);
    return file.open(QIODevice::ReadOnly) && xml.readNextStartElement() ? xml.name().toString() : QString();
}

/// One line for each value, indented by its depth: the values of an element come before its elements.
void AddLines(const QString& name, const QJsonValue& value, int depth, QString& text)
{
    if (value.isArray()) {
        const QJsonArray items = value.toArray();
        for (const QJsonValue& item : items)
            AddLines(name, item, depth, text);
        return;
    }
    const QString indent(depth * 2, QLatin1Char(' '));
    if (!value.isObject()) {
        text += indent + name + QStringLiteral(": ") + OrvanTools::Printable(value.toString())
                + QLatin1Char('\n');
        return;
    }
    text += indent + name + QLatin1Char('\n');
    const QJsonObject object = value.toObject();
    for (const bool nested : {false, true}) {
        for (auto child = object.constBegin(); child != object.constEnd(); ++child) {
            if (child.value().isString() != nested)
                AddLines(child.key(), child.value(), depth + 1, text);
        }
    }
}

int Run(const Invocation& invocation)
{
    const QString file = invocation.files.first();
    const QString path = InputPath(file);
    if (path.isEmpty())
        return StatusFile;
    if (QFileInfo(path).isDir())
        return Fail(StatusFile, file, QStringLiteral("is a folder"));
    QString error;
    const QJsonObject contents = params::ParamFileContents(path, &error);
    if (contents.isEmpty())
        return Fail(StatusFile, file, error);
    if (invocation.parser.isSet(QStringLiteral("json"))) {
        PrintJson(contents);
        return StatusDone;
    }
    QString text;
    AddLines(RootName(path), contents, 0, text);
    Print(text);
    return StatusDone;
}

} // namespace

const Command kParamsCommand = {"params",   "FILE", "A sender or processor parameter file.",
                                1,          1,      "What a parameter file holds.",
                                AddOptions, Run,    false,
                                false,      true};
