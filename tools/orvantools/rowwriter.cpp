#include "orvantools/rowwriter.h"

#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace OrvanTools {

namespace {

/// A spreadsheet takes a text for a formula that begins like one. An apostrophe keeps it a text.
QByteArray Guarded(const QByteArray& text)
{
    static const QRegularExpression number(QStringLiteral("^-[0-9]+([.][0-9]+)?\\z"));
    if (text.isEmpty() || !QByteArray("=+-@\t\r").contains(text.at(0))
        || number.match(QString::fromUtf8(text)).hasMatch())
        return text;
    return '\'' + text;
}

QByteArray Quoted(QByteArray text)
{
    for (const char special : {',', '"', '\r', '\n'}) {
        if (text.contains(special))
            return '"' + text.replace("\"", "\"\"") + '"';
    }
    return text;
}

QByteArray JsonText(const QString& text)
{
    const bool plain = std::all_of(text.begin(), text.end(), [](QChar character) {
        return character >= QLatin1Char(' ') && character != QLatin1Char('"')
               && character != QLatin1Char('\\');
    });
    if (plain) // ten times as quick
        return '"' + text.toUtf8() + '"';
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

} // namespace

RowWriter::RowWriter(QIODevice& device, ListForm form, const std::vector<QByteArray>& names)
    : m_device(device), m_json(form == ListForm::JsonLines)
{
    for (const QByteArray& name : names) {
        const bool first = &name == &names.front();
        m_leads.push_back(m_json ? (first ? "{\"" : ",\"") + name + "\":" : QByteArray(first ? "" : ","));
        if (!m_json)
            m_row += m_leads.back() + name;
    }
    if (!m_json)
        m_row = "\xEF\xBB\xBF" + m_row + "\r\n"; // goes out with the first row, or with the end
}

void RowWriter::AddAngle(double degrees)
{
    AddNumber(QByteArray::number(degrees, 'g', 6));
}

void RowWriter::AddPixels(double pixels)
{
    const QByteArray text = QByteArray::number(pixels, 'f', 1);
    AddNumber(text == "-0.0" ? "0.0" : text);
}

void RowWriter::AddText(const QString& text)
{
    if (text.isEmpty()) {
        AddEmpty();
        return;
    }
    BeginField();
    m_row += m_json ? JsonText(text) : Quoted(Guarded(text.toUtf8()));
}

void RowWriter::AddEmpty(int count)
{
    for (int i = 0; i < count; ++i) {
        BeginField();
        m_row += m_json ? "null" : "";
    }
}

bool RowWriter::EndRow()
{
    m_row += m_json ? "}\n" : "\r\n";
    m_field = 0;
    return Finish();
}

void RowWriter::BeginField()
{
    m_row += m_leads[m_field];
    ++m_field;
}

void RowWriter::AddNumber(const QByteArray& text)
{
    BeginField();
    m_row += text;
}

bool RowWriter::Finish()
{
    const bool taken = m_device.write(m_row) == m_row.size();
    m_row.resize(0);
    return taken;
}

} // namespace OrvanTools
