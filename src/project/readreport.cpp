#include "project/readreport.h"

#include <QCoreApplication>

void ReadReport::Add(const QString& line)
{
    if (m_lines.size() < kMaxLines)
        m_lines.append(line);
    else
        ++m_more;
}

void ReadReport::AddElement(std::string_view name)
{
    if (m_lines.size() >= kMaxLines) {
        ++m_more;
        return;
    }
    const QString shown = QString::fromUtf8(name.data(), static_cast<int>(name.size())).left(64);
    Add(QCoreApplication::translate("OrvanData", "跳过元素“%1”").arg(shown));
}

QString ReadReport::Text() const
{
    QString text = m_lines.join(QStringLiteral("; "));
    if (m_more > 0)
        text += QStringLiteral("; ") + QCoreApplication::translate("OrvanData", "另有%1处").arg(m_more);
    return text;
}
