#pragma once

#include <QString>
#include <QStringList>

#include <string_view>

/// What a reader passed over: a few lines for the user, never more than kMaxLines of a hostile file.
class ReadReport
{
public:
    void Add(const QString& line);
    void AddElement(std::string_view name); ///< an element that was passed over
    QString Text() const;                   ///< lines joined by "; ", empty when nothing was passed over
    bool IsEmpty() const { return m_lines.isEmpty(); }

private:
    static constexpr int kMaxLines = 10;

    QStringList m_lines;
    int m_more = 0;
};
