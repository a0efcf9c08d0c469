#pragma once

#include "layout/sender.h"
#include "params/elementreader.h"
#include "params/elementwriter.h"

/// Colour cubes and curves of the inputs. Entries without a source index stand for a card slot.
namespace params {

constexpr const char* kColorCubeRoot = "ColorCubeParamRoot";
constexpr const char* kColorCurveRoot = "ColorCurveParamRoot"; ///< read only; written without a root
constexpr const char* kColorCurveEnable = "ColorCurveEnable";
constexpr const char* kColorCurveCount = "boardCount"; ///< in lower case, unlike that of the cubes

template <class F> void Describe(F& f, Ref<F, SInputVideoColorCubeParam> r)
{
    f.Field("SlotNum", r.slotNum);
    if (f.WithSource()) {
        f.Field("SourceIndex", r.sourceIndex);
        f.Field("ColorCubeEnable", r.enable);
    }
    DescribeArray(f, "ColorParam", 0, r.coefs);
}

template <class F> void DescribePoints(F& f, const char* name, Ref<F, QList<QPointF>> points)
{
    const auto describe = [&f](int number, auto& point) {
        double x = point.x();
        double y = point.y();
        f.Field(FieldName("PointX") + number, x);
        f.Field(FieldName("PointY") + number, y);
        if constexpr (F::kReads)
            point = QPointF(x, y);
    };
    f.Group(name, [&] { f.Flat("AdjPointCount", "Point", points, describe, kMaxCurvePoints); });
}

template <class F> void Describe(F& f, Ref<F, SInputVideoColorCurveParam> r)
{
    f.Field("SlotNum", r.slotNum);
    if (f.WithSource()) {
        f.Field("SourceIndex", r.sourceIndex);
        f.Field(kColorCurveEnable, r.enable);
    }
    DescribePoints(f, "Red", r.points[ColorCurveRed]);
    DescribePoints(f, "Green", r.points[ColorCurveGreen]);
    DescribePoints(f, "Blue", r.points[ColorCurveBlue]);
    DescribePoints(f, "Luminance", r.points[ColorCurveLuminance]);
}

template <class F, class Data> void DescribeColorCubes(F& f, Data& data)
{
    f.Field("ColorCubeEnable", data.cubeEnable);
    f.Field("ToAllSignal", data.cubeAllSignal);
    f.Counted("BoardCount", "ColorCubeBoard", 0, data.cubes);
}

template <class F, class Data> void DescribeColorCurves(F& f, Data& data)
{
    f.Field(kColorCurveEnable, data.curveEnable);
    f.Field("ToAllSignal", data.curveAllSignal);
    f.Counted(kColorCurveCount, "ColorCurveBoard", 0, data.curves);
}

} // namespace params
