#pragma once

#include "records/comparedrecord.h"

#include <QList>
#include <QPointF>
#include <QString>
#include <QVector>

#include <array>

constexpr int kColorCubeCoefs = 42;
constexpr int kMaxCurvePoints = 4096; ///< of a channel, as far as files are believed

/// The colour cube of one input, which a card slot and a source index name together.
struct SInputVideoColorCubeParam : ComparedRecord<SInputVideoColorCubeParam>
{
    qint32 slotNum = 0;
    qint32 sourceIndex = 0;
    bool enable = false;
    std::array<float, kColorCubeCoefs> coefs{};

    auto Values() const { return std::tie(slotNum, sourceIndex, enable, coefs); }
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
struct SInputVideoColorCurveParam : ComparedRecord<SInputVideoColorCurveParam>
{
    qint32 slotNum = 0;
    qint32 sourceIndex = 0;
    bool enable = false;
    bool lock = false;
    std::array<QList<QPointF>, kColorCurveChannels> points; ///< by EColorCurveChannel

    auto Values() const { return std::tie(slotNum, sourceIndex, enable, lock, points); }
};

/// The three-dimensional look-up table of one input; not in files.
struct SInputVideo3DLUTParam : ComparedRecord<SInputVideo3DLUTParam>
{
    qint32 slotNum = 0;
    qint32 sourceIndex = 0;
    bool enable = false;
    QString fileName;
    QString fileTitle;
    float strength = 0;
    QVector<float> table;

    auto Values() const
    {
        return std::tie(slotNum, sourceIndex, enable, fileName, fileTitle, strength, table);
    }
};
