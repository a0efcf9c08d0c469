#pragma once

#include "records/recordwalk.h"

#include <QList>
#include <QPointF>
#include <QVector>

#include <array>

constexpr int kColorCubeCoefs = 42;
constexpr int kMaxCurvePoints = 4096; ///< of a channel, as far as files are believed

/// The colour cube of one input, which a card slot and a source index name together.
struct SInputVideoColorCubeParam : WalkedRecord<SInputVideoColorCubeParam>
{
    qint32 slotNum = 0;
    qint32 sourceIndex = 0;
    bool enable = false;
    std::array<float, kColorCubeCoefs> coefs{};

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("SlotNum", r.slotNum...);
        if (f.WithSource()) {
            f.Field("SourceIndex", r.sourceIndex...);
            f.Field("ColorCubeEnable", r.enable...);
        }
        f.Numbered("ColorParam", 0, r.coefs...);
    }
};

enum EColorCurveChannel : int
{
    ColorCurveLuminance = 0,
    ColorCurveRed = 1,
    ColorCurveGreen = 2,
    ColorCurveBlue = 3,
};

constexpr int kColorCurveChannels = 4;

/// The colour curves of one input. The lock is not in files.
struct SInputVideoColorCurveParam : WalkedRecord<SInputVideoColorCurveParam>
{
    qint32 slotNum = 0;
    qint32 sourceIndex = 0;
    bool enable = false;
    bool lock = false;
    std::array<QList<QPointF>, kColorCurveChannels> points; ///< by EColorCurveChannel

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("SlotNum", r.slotNum...);
        if (f.WithSource()) {
            f.Field("SourceIndex", r.sourceIndex...);
            f.Field("ColorCurveEnable", r.enable...);
        }
        f.Unnamed(r.lock...);
        f.Points("Red", r.points[ColorCurveRed]...);
        f.Points("Green", r.points[ColorCurveGreen]...);
        f.Points("Blue", r.points[ColorCurveBlue]...);
        f.Points("Luminance", r.points[ColorCurveLuminance]...);
    }
};

/// The three-dimensional look-up table of one input; not in files.
struct SInputVideo3DLUTParam : WalkedRecord<SInputVideo3DLUTParam>
{
    qint32 slotNum = 0;
    qint32 sourceIndex = 0;
    bool enable = false;
    QString fileName;
    QString fileTitle;
    float strength = 0;
    QVector<float> table;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Unnamed(r.slotNum...);
        f.Unnamed(r.sourceIndex...);
        f.Unnamed(r.enable...);
        f.Unnamed(r.fileName...);
        f.Unnamed(r.fileTitle...);
        f.Unnamed(r.strength...);
        f.Unnamed(r.table...);
    }
};
