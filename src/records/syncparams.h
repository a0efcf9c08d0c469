#pragma once

#include "records/comparedrecord.h"

#include <QtGlobal>

#include <array>

/// Synchronisation of a processor: the configured sync input, and the one in force when it was read.
struct SVSyncParam : ComparedRecord<SVSyncParam>
{
    qint32 syncSource = 0;
    qint32 syncPhase = 0;
    qint32 timeInterval = 0;
    qint32 boardType = 0;
    qint32 boardIndex = 0;
    qint32 sourceType = 0;
    qint32 slotNum = 0;
    qint32 sourceIndex = 0;
    qint32 curBoardType = 0;
    qint32 curBoardIndex = 0;
    qint32 curSourceType = 0;
    qint32 curSlotNum = 0;
    qint32 curSourceIndex = 0;
    qint32 curVSyncFreq = 0;
    qint32 curGenlockState = 0;
    qint32 curGenlockFreq = 0;

    auto Values() const
    {
        return std::tie(syncSource, syncPhase, timeInterval, boardType, boardIndex, sourceType, slotNum,
                        sourceIndex, curBoardType, curBoardIndex, curSourceType, curSlotNum, curSourceIndex,
                        curVSyncFreq, curGenlockState, curGenlockFreq);
    }
};

/// One frame of a frame multiplex.
struct SFrameRemapping : ComparedRecord<SFrameRemapping>
{
    quint8 frameNum = 0;
    quint8 frameSetting = 0;
    quint16 rLabel = 0;
    quint16 gLabel = 0;
    quint16 bLabel = 0;
    quint16 xLabel = 0;
    quint16 yLabel = 0;

    auto Values() const { return std::tie(frameNum, frameSetting, rLabel, gLabel, bLabel, xLabel, yLabel); }
};

constexpr int kFrameRemappings = 10;

/// Frequency and frame multiplexing. All ten frames are kept, whatever the frame count says.
struct SFrequencyFrameMultiParam : ComparedRecord<SFrequencyFrameMultiParam>
{
    quint8 frequencyFlag = 0;
    quint8 frequencySetting = 0;
    quint8 frequencyCount = 0;
    quint8 frameFlag = 0;
    quint8 frameCount = 0;
    std::array<SFrameRemapping, kFrameRemappings> frames;

    auto Values() const
    {
        return std::tie(frequencyFlag, frequencySetting, frequencyCount, frameFlag, frameCount, frames);
    }
};
