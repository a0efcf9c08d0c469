#pragma once

#include <QString>
#include <QStringList>

#include <string_view>

/// What numbered children are to the user, by the prefix of their names: "箱体" for "Tile_".
QString ChildrenName(std::string_view prefix);

/// Tells the user that a file holds more children of this prefix than there may be.
QString TooManyToRead(std::string_view prefix, int most);

/// What a reader passed over, in at most kMaxLines lines for the user, or why it refuses the file. Nothing is
/// taken from a file that is refused.
class ReadReport
{
public:
    void Refuse(const QString& why); ///< the first reason stays
    bool IsRefused() const { return !m_refusal.isEmpty(); }
    QString GetRefusal() const { return m_refusal; }

    void Add(const QString& line);
    void AddElement(std::string_view name); ///< an element that was passed over
    QString Text() const;                   ///< lines joined by "; ", empty when nothing was passed over

private:
    static constexpr int kMaxLines = 10;

    QString m_refusal;
    QStringList m_lines;
    int m_more = 0;
};
