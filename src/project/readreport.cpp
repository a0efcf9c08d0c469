#include "project/readreport.h"

#include "common/texts.h"

#include <utility>

namespace {

constexpr int kShownName = 64; ///< characters

QString Shown(std::string_view name)
{
    return QString::fromUtf8(name.data(), static_cast<int>(name.size())).left(kShownName);
}

} // namespace

QString ChildrenName(std::string_view prefix)
{
    static const std::pair<std::string_view, const char*> names[] = {
        {"Sender_", QT_TRANSLATE_NOOP("OrvanData", "主控")},
        {"Port_", QT_TRANSLATE_NOOP("OrvanData", "输出口")},
        {"Tile_", QT_TRANSLATE_NOOP("OrvanData", "箱体")},
        {"TileGroup", QT_TRANSLATE_NOOP("OrvanData", "分组")},
        {"SenderGroup_", QT_TRANSLATE_NOOP("OrvanData", "主控分组")},
        {"Gamma_", QT_TRANSLATE_NOOP("OrvanData", "伽马值")},
        {"File", QT_TRANSLATE_NOOP("OrvanData", "参数文件")},
    };
    for (const auto& [start, name] : names) {
        if (prefix.substr(0, start.size()) == start)
            return Texts::tr(name);
    }
    return Shown(prefix);
}

QString TooManyToRead(std::string_view prefix, int most)
{
    return Texts::tr("%1过多，最多%2个，文件未读取。").arg(ChildrenName(prefix), QString::number(most));
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
    Add(Texts::tr("跳过元素“%1”").arg(Shown(name)));
}

QString ReadReport::Text() const
{
    QString text = m_lines.join(QStringLiteral("; "));
    if (m_more > 0)
        text += QStringLiteral("; ") + Texts::tr("另有%1处").arg(m_more);
    return text;
}
