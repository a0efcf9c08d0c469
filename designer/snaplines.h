#pragma once

#include <QPoint>
#include <QRect>

#include <vector>

class SceneModel;

/// The edges of what stays while cabinets are dragged: of the other cabinets and of the canvas. What is
/// dragged keeps to them when it comes near.
class SnapLines
{
public:
    SnapLines() = default;
    explicit SnapLines(const SceneModel& scene); ///< cabinets that are not selected stay

    struct Snapped
    {
        QPoint moved;               ///< where it goes instead
        std::vector<int> uprightAt; ///< wall pixels of the edges that meet: x of upright lines
        std::vector<int> levelAt;   ///< y of level ones
    };
    /// `bound` is what is dragged, before it is moved; nothing farther than `reach` draws it.
    Snapped Snap(const QRect& bound, const QPoint& by, int reach) const;

private:
    static int Nearest(const std::vector<int>& edges, int first, int last, int reach);
    static void Meet(const std::vector<int>& edges, int at, std::vector<int>& met);

    std::vector<int> m_x; ///< in order, each once
    std::vector<int> m_y;
};
