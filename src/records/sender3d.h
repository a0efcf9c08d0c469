#pragma once

#include "records/comparedrecord.h"

#include <QtGlobal>

#include <array>

constexpr int kRightEyeNumbers = 8;
constexpr int kLayerSignalPairs = 4;

/// Stereoscopic output: how the right eye follows the left one, and which inputs each layer shows to them.
struct Sender3D : ComparedRecord<Sender3D>
{
    struct signal : ComparedRecord<signal>
    {
        qint32 slotNum = 0;
        qint32 boardType = 0;
        qint32 boardIndex = 0;
        qint32 sourceIndex = 0;
        qint32 sourceType = 0;
        qint32 sourceTypeIndex = 0;

        auto Values() const
        {
            return std::tie(slotNum, boardType, boardIndex, sourceIndex, sourceType, sourceTypeIndex);
        }
    };

    bool enable = false;
    bool leftEyeFirst = false; ///< files hold the opposite
    quint32 delayTime = 0;
    qint32 mode = 0;
    qint32 offsetX = 0; ///< of the right eye
    qint32 offsetY = 0;
    std::array<qint32, kRightEyeNumbers> rightNumbers{};
    std::array<signal, kLayerSignalPairs> leftSignals;
    std::array<signal, kLayerSignalPairs> rightSignals;

    auto Values() const
    {
        return std::tie(enable, leftEyeFirst, delayTime, mode, offsetX, offsetY, rightNumbers, leftSignals,
                        rightSignals);
    }
};
