#pragma once

#include "records/recordwalk.h"

#include <array>

/// Synchronisation of a processor: the configured sync input, and the one in force when it was read.
struct SVSyncParam : WalkedRecord<SVSyncParam>
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

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("DeviceSetParamsVSyncSource", r.syncSource...);
        f.Field("DeviceSetParamsVSyncPhase", r.syncPhase...);
        f.Field("DeviceSetParamsTimeInterval", r.timeInterval...);
        f.Field("DeviceSetParamsBoardType", r.boardType...);
        f.Field("DeviceSetParamsBoardIndex", r.boardIndex...);
        f.Field("DeviceSetParamsSourceType", r.sourceType...);
        f.Field("DeviceSetParamsSlotNum", r.slotNum...);
        f.Field("DeviceSetParamsSourceIndex", r.sourceIndex...);
        f.Field("DeviceSetParamsCurBoardType", r.curBoardType...);
        f.Field("DeviceSetParamsCurBoardIndex", r.curBoardIndex...);
        f.Field("DeviceSetParamsCurSourceType", r.curSourceType...);
        f.Field("DeviceSetParamsCurSlotNum", r.curSlotNum...);
        f.Field("DeviceSetParamsCurSourceIndex", r.curSourceIndex...);
        f.Field("DeviceSetParamsCurVSyncFreq", r.curVSyncFreq...);
        f.Field("DeviceSetParamsCurGenlockState", r.curGenlockState...);
        f.Field("DeviceSetParamsCurGenlockFreq", r.curGenlockFreq...);
    }
};

/// One frame of a frame multiplex.
struct SFrameRemapping : WalkedRecord<SFrameRemapping>
{
    quint8 frameNum = 0;
    quint8 frameSetting = 0;
    quint16 rLabel = 0;
    quint16 gLabel = 0;
    quint16 bLabel = 0;
    quint16 xLabel = 0;
    quint16 yLabel = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("DeviceSetParamsFrameNum", r.frameNum...);
        f.Field("DeviceSetParamsFrameSetting", r.frameSetting...);
        f.Field("DeviceSetParamsFrameRlabel", r.rLabel...);
        f.Field("DeviceSetParamsFrameGlabel", r.gLabel...);
        f.Field("DeviceSetParamsFrameBlabel", r.bLabel...);
        f.Field("DeviceSetParamsFrameXlabel", r.xLabel...);
        f.Field("DeviceSetParamsFrameYlabel", r.yLabel...);
    }
};

constexpr int kFrameRemappings = 10;

/// Frequency and frame multiplexing. All ten frames are kept, whatever the frame count says.
struct SFrequencyFrameMultiParam : WalkedRecord<SFrequencyFrameMultiParam>
{
    quint8 frequencyFlag = 0;
    quint8 frequencySetting = 0;
    quint8 frequencyCount = 0;
    quint8 frameFlag = 0;
    quint8 frameCount = 0;
    std::array<SFrameRemapping, kFrameRemappings> frames;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("DeviceSetParamsFrequencyFlag", r.frequencyFlag...);
        f.Field("DeviceSetParamsFrequencySetting", r.frequencySetting...);
        f.Field("DeviceSetParamsFrequencyCount", r.frequencyCount...);
        f.Field("DeviceSetParamsFrameFlag", r.frameFlag...);
        f.Field("DeviceSetParamsFrameCount", r.frameCount...);
        f.Numbered("DeviceSetParamsFrameData", 0, r.frames...);
    }
};
