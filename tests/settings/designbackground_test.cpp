#include "settings/designbackground.h"
#include "settings/settingslookup.h"

#include <gtest/gtest.h>

namespace {

/// The windows of a host.
class Windows : public SettingsLookup
{
public:
    int CurrentInterface() const override { return interface; }
    void SetCurrentInterface(int current) override { interface = current; }
    int VideoSourceSubDlg() const override { return subDialog; }
    int DesignSubDlg() const override { return subDialog; }
    void SetDesignSubDlg(int current) override { subDialog = current; }
    int CalibrationSubDlg() const override { return subDialog; }
    int SoftEdgeSubDlg() const override { return subDialog; }

    int interface = InterfaceDesign;
    int subDialog = 0;
};

struct DesignBackgroundTest : testing::Test
{
    DesignBackgroundTest() { SetSettingsLookup(&windows); }
    ~DesignBackgroundTest() override { SetSettingsLookup(nullptr); }

    Windows windows;
    CDesignBackground background;
    const QPoint noFix = QPoint(-1, -1);
};

} // namespace

TEST_F(DesignBackgroundTest, EveryWindowHasItsViewAndCanvas)
{
    const int cases[][4] = {{0, 3, 0, 32768},  {1, 0, 4, 32768}, {1, 1, 11, 32768}, {1, 2, 6, 32768},
                            {1, 3, 5, 32768},  {1, 4, 0, 32768}, {2, 1, 0, 32768},  {3, 0, 0, 32768},
                            {3, 3, 1, 131072}, {4, 0, 7, 32768}, {4, 1, 8, 131072}, {5, 0, 2, 32768},
                            {5, 1, 3, 131072}, {6, 1, 9, 32768}, {7, 1, 10, 32768}, {8, 1, 0, 32768}};
    for (const auto& [interface, subDialog, index, width] : cases) {
        windows.interface = interface;
        windows.subDialog = subDialog;
        EXPECT_EQ(background.GetScalingIndex(), index) << interface << " " << subDialog;
        EXPECT_EQ(background.GetBackgroundMaxSize(), QSize(width, 16384)) << interface;
    }
}

TEST_F(DesignBackgroundTest, WheelVisitsTheStepsOfItsDirection)
{
    const std::tuple<float, bool, float> cases[] = {
        {1, true, 1.2f},     {1, false, 0.9f}, {0.055f, true, 0.06f}, {0.06f, false, 0.05f},
        {0.47f, true, 0.5f}, {10, false, 9},   {10, true, -1},        {20, false, -1}};
    background.SetClientRect(0, QRect(0, 0, 100, 100));
    for (const auto& [from, zoomIn, to] : cases) {
        background.ResetViewScaling();
        background.SetViewScaling(from, noFix);
        const bool done = background.MouseScalingModify(zoomIn, noFix);
        EXPECT_FLOAT_EQ(done ? background.GetViewScaling() : -1, to) << from;
    }
}

TEST_F(DesignBackgroundTest, ScalingIsBoundByTheCanvas)
{
    EXPECT_EQ(background.GetClientRect(), QRect(0, 0, 1920, 1080));
    background.SetClientRect(0, QRect(50, 100, 1920, 1080)); // only its size counts
    EXPECT_TRUE(background.SetViewScaling(0.01f, noFix));
    EXPECT_FLOAT_EQ(background.GetViewScaling(), 1080.0f / 16384);

    QPoint start(40000, -3);
    EXPECT_TRUE(background.ViewStartPtValid(start, 0.5f));
    EXPECT_EQ(start, QPoint(32768 - 3840, 0));
    for (const auto& [scaling, valid] : {std::pair(1080.0f / 16384, true), {0.0657f, false}, {0.07f, true}}) {
        float taken = scaling;
        EXPECT_EQ(background.ViewScalingValid(taken), valid) << scaling;
        EXPECT_FLOAT_EQ(taken, valid ? scaling : 1080.0f / 16384);
    }
    for (const auto& [scaling, fix] : {std::pair(0.5f, noFix), {2.0f, QPoint(1, 1)}}) {
        background.ResetViewScaling();
        background.SetViewStartPt(QPoint(99999, 99999));
        EXPECT_TRUE(background.SetViewScaling(scaling, fix));
        EXPECT_EQ(background.GetViewStartPt(),
                  QPoint(32768 - int(1920 / scaling), 16384 - int(1080 / scaling)));
    }
}

TEST_F(DesignBackgroundTest, ZoomKeepsThePixelUnderThePointer)
{
    background.SetViewStartPt(QPoint(1000, 2000));
    EXPECT_TRUE(background.SetViewScaling(2.0f, QPoint(400, 300)));
    EXPECT_EQ(background.GetViewStartPt(), QPoint(1200, 2150));
    background.SetLockLeftTopScaling(true);
    EXPECT_TRUE(background.SetViewScaling(4.0f, QPoint(400, 300)));
    EXPECT_EQ(background.GetViewStartPt(), QPoint(1200, 2150));
}

TEST_F(DesignBackgroundTest, ZoomingInAgainReturnsToThePlaceThatTheEdgeTook)
{
    background.SetViewStartPt(QPoint(100, 50));
    // Zooming out about a far pixel would put the start left of the canvas.
    ASSERT_TRUE(background.SetViewScaling(0.5f, QPoint(1900, 1000)));
    EXPECT_EQ(background.GetViewStartPt(), QPoint(0, 0));
    ASSERT_TRUE(background.SetViewScaling(1.0f, QPoint(10, 10)));
    EXPECT_EQ(background.GetViewStartPt(), QPoint(100, 50));

    // Zooming from further in forgets the places kept for smaller scalings.
    background.SetViewStartPt(QPoint(20, 30));
    const auto zoom = [this](float scaling, QPoint fix) {
        background.SetViewScaling(scaling, fix);
        return background.GetViewStartPt();
    };
    const QPoint far(1900, 1000);
    EXPECT_EQ(zoom(2, QPoint(0, 0)), QPoint(20, 30));
    EXPECT_EQ(zoom(1, far), QPoint(0, 0));
    background.SetViewStartPt(QPoint(7, 8));
    EXPECT_EQ(zoom(0.5f, far), QPoint(0, 0));
    EXPECT_EQ(zoom(1, QPoint(10, 10)), QPoint(7, 8));
    EXPECT_EQ(zoom(2, QPoint(10, 10)), QPoint(20, 30));

    ASSERT_EQ(zoom(0.5f, far), QPoint(0, 0));
    background.ResetViewScaling();
    ASSERT_TRUE(background.SetViewScaling(0.5f, noFix) && background.SetViewScaling(1.0f, QPoint(10, 10)));
    EXPECT_NE(background.GetViewStartPt(), QPoint(100, 50)) << "what was before the reset is forgotten";
}

TEST_F(DesignBackgroundTest, RefusedScalingLeavesTheViewUntouched)
{
    bool modified = true;
    EXPECT_FALSE(background.SetViewScaling(float(qQNaN()), noFix));
    for (const auto& [interface, subDialog] : {std::pair(3, 1), std::pair(1, 3)}) {
        windows.interface = interface;
        windows.subDialog = subDialog;
        EXPECT_FALSE(background.SetViewScaling(0.5f, noFix));
        background.GetViewScaling(&modified);
        EXPECT_FALSE(modified);
    }
    windows.interface = InterfaceControl;
    EXPECT_FALSE(background.SetViewScaling(1.0f, noFix));
    background.GetViewScaling(&modified);
    EXPECT_TRUE(modified); // the same scaling, but set by the user
}

TEST_F(DesignBackgroundTest, StartIsClampedAndChangesAreNotified)
{
    int notified = 0;
    background.SetNotification([&notified] { ++notified; });
    EXPECT_TRUE(background.SetViewStartPt(QPoint(-5, 10)));
    EXPECT_EQ(background.GetViewStartPt(), QPoint(0, 10));
    EXPECT_FALSE(background.SetViewStartPt(QPoint(-7, 10)));
    EXPECT_EQ(notified, 1);
    background.SetViewScaling(2.0f, noFix);
    EXPECT_EQ(notified, 2);
    background.SetViewScaling(3.0f, QPoint(1, 1));
    background.SetViewScaling(4.0f, QPoint(0, 0));
    EXPECT_EQ(notified, 2);
    background.SetViewScaling(5.0f, QPoint(-1, 0));
    background.SetViewScaling(6.0f, QPoint(0, -1));
    EXPECT_EQ(notified, 4);
    bool modified = true;
    background.ResetViewScaling();
    EXPECT_EQ(background.GetViewScaling(&modified), 1.0f);
    EXPECT_TRUE(background.GetViewStartPt().isNull() && !modified);
}

TEST_F(DesignBackgroundTest, AdaptiveScalingIsTheLargestPercentageThatFits)
{
    const std::tuple<QSize, int, float> cases[] = {
        {QSize(1000, 500), 0, 1.0f},
        {QSize(1920, 1079), 0, 0.99f}, // equal does not fit
        {QSize(3000, 500), 0, 0.63f},  // 0.64 fills the client exactly
        {QSize(3000, 500), 100, 0.6f},
        {QSize(96000, 500), 0, -1}};
    for (const auto& [content, margin, scaling] : cases) {
        background.ResetViewScaling();
        const bool done = background.SetAdaptiveScaling(QSize(1920, 1080), content, margin);
        EXPECT_FLOAT_EQ(done ? background.GetViewScaling() : -1, scaling) << content.width();
    }
}

TEST_F(DesignBackgroundTest, NewProjectAdaptsEveryInterfaceAndRestoresTheWindows)
{
    windows.interface = InterfaceSoftEdge;
    windows.subDialog = 3;
    background.SetClientRect(9, QRect(0, 0, 500, 1080));
    EXPECT_TRUE(background.NewProSetAdeptScaling(QSize(3000, 500), 0));
    EXPECT_EQ(windows.interface, int(InterfaceSoftEdge));
    EXPECT_EQ(windows.subDialog, 3);
    windows.subDialog = 0;
    for (int i = 0; i <= 8; ++i) {
        windows.interface = i;
        EXPECT_FLOAT_EQ(background.GetViewScaling(), i == InterfaceGamutAdjustment ? 0.16f : 0.63f) << i;
    }
}

TEST_F(DesignBackgroundTest, ConversionRoundsHalfAwayFromZeroAndSaturates)
{
    background.SetViewStartPt(QPoint(10, 20));
    background.SetViewScaling(0.5f, noFix);
    QPoint point;
    EXPECT_TRUE(background.WholePixelToViewPixel(QPoint(13, 15), &point));
    EXPECT_EQ(point, QPoint(2, -3));
    EXPECT_EQ(background.GetViewPoint(QPointF(13.25, 15)), QPointF(1.625, -2.5)) << "not rounded";
    QPointF place;
    EXPECT_TRUE(background.WholePixelToViewPixel(QPointF(13, 15), &place));
    EXPECT_EQ(place, QPointF(2, -3));
    QRect rect;
    EXPECT_TRUE(background.WholePixelToViewPixel(QRect(10, 20, 101, 51), &rect));
    EXPECT_EQ(rect, QRect(QPoint(0, 0), QPoint(50, 25)));
    int length = 0;
    background.SetViewScaling(3.0f, noFix);
    EXPECT_TRUE(background.WholePixelToViewPixel(2000000000, &length));
    EXPECT_EQ(length, 2147483647);
}

TEST_F(DesignBackgroundTest, AViewPixelLeadsBackToThePixelDrawnThere)
{
    const QPoint start(300, 70);
    for (const float scaling : {0.1f, 0.37f, 0.5f, 1.0f, 1.4f, 3.5f, 10.0f}) {
        background.ResetViewScaling();
        background.SetViewScaling(scaling, noFix);
        background.SetViewStartPt(start);
        for (int at = -20; at < 100; ++at) {
            QPoint whole;
            QPoint first;
            QPoint next;
            background.ViewPixelToWholePixel(QPoint(at, 2 * at), &whole);
            background.WholePixelToViewPixel(whole, &first);
            background.WholePixelToViewPixel(whole + QPoint(1, 1), &next);
            EXPECT_TRUE(first.x() <= at && at < next.x() && first.y() <= 2 * at && 2 * at < next.y())
                << at << " at " << scaling;
        }
    }
    background.SetViewScaling(0.5f, noFix);
    QPoint far;
    EXPECT_TRUE(background.ViewPixelToWholePixel(QPoint(2000000000, -2000000000), &far));
    EXPECT_EQ(far, QPoint(2147483647, -2147483647 - 1));
    QPointF between;
    EXPECT_TRUE(background.ViewPixelToWholePixel(QPointF(3.25, -1), &between));
    EXPECT_EQ(between, QPointF(start) + QPointF(6.5, -2));
}
