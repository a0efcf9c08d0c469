#include "project/readreport.h"

#include <QCoreApplication>

namespace {

constexpr int kShownName = 64; ///< characters

QString Shown(std::string_view name)
{
    return QString::fromUtf8(name.data(), static_cast<int>(name.size())).left(kShownName);
}

} // namespace

QString TooManyToRead(std::string_view name, int most)
{
    return QCoreApplication::translate("OrvanData", "“%1”过多，最多%2个，文件未读取。")
        .arg(Shown(name), QString::number(most));
}

void ReadReport::Refuse(const QString& why)
{
    if (m_refusal.isEmpty())
        m_refusal = why;
}

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
    Add(QCoreApplication::translate("OrvanData", "跳过元素“%1”").arg(Shown(name)));
}

QString ReadReport::Text() const
{
    QString text = m_lines.join(QStringLiteral("; "));
    if (m_more > 0)
        text += QStringLiteral("; ") + QCoreApplication::translate("OrvanData", "另有%1处").arg(m_more);
    return text;
}
