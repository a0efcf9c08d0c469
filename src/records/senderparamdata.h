#pragma once

#include "records/colorparams.h"
#include "records/displayparams.h"
#include "records/exactcolorparam.h"
#include "records/inputsources.h"
#include "records/inputvideoparam.h"
#include "records/outputparams.h"
#include "records/sender3d.h"
#include "records/senderdmx.h"
#include "records/syncparams.h"

#include <QColor>
#include <QSharedData>

constexpr int kPictureInFirstRecord = 4; ///< the device class with picture values of its own

/// The values behind a CSenderParams, shared by its copies until one of them is changed.
struct SenderParamData : QSharedData, ComparedRecord<SenderParamData>
{
    int deviceClass = 0;
    int processorType = 0;
    bool exportConfig = false;
    bool freezed = false;
    SSupportOptionsInfo support;

    // picture
    SPictureParam firstPicture; ///< of device class 4
    SPictureParam picture{{}, 100, 6500, 3000, 100, 30, 100, 0};
    float blackoutFadeTime = 0; ///< seconds
    bool blackout = false;
    bool picAdjEnable = false;
    bool adjByColorTemp = false;
    bool betterGray = false;
    QColor curColorRgb{0, 0, 0};
    int curTestModel = 0;
    SSenderPeakBrightness peakBrightness;

    // synchronisation
    SVSyncParam vSync;
    int vSyncFreq = 0; ///< hertz
    int vSyncDelay = 0;
    int vSyncMultiFreq = 0;
    int vSyncMultiWay = 0;
    int vSyncMultiFlag = 0;
    bool syncSource = false;
    int syncLockSource = 0;
    SFrequencyFrameMultiParam multi;
    Sender3D stereo;

    // inputs
    QList<SInputVideoParam> inputVideos;
    QList<SenderVideoInfo> videoInfos;
    QList<SenderVideoInputClip> inputClips;
    QList<SenderEDID> inputEdids;
    QList<SenderJointOffset> inputJoints;
    QList<SenderBalanced> balanced;
    SInputVideoHotBackup hotBackup;
    int inputAudio = 0;
    SSignalPosInfo inputAudioV;
    int inputVolume = 0;
    int inputRange = 0;
    EVideoSelect videoSelect = VideoSelectDefault;
    int selVideoSourceIndex = 0;
    int selSubBoardIndex = 0;
    int selSubBoardType = 0;
    bool signalAbnormal = false;

    // outputs
    std::array<SLayerWndParam, kMaxLayers> layers;
    SCuttingLineParam cuttingLines;
    SPortGroupParam portGroups;
    QList<int> netPorts; ///< brightness of each output port
    int netPortConfig = 0;
    int originalCanvasWidth = 0; ///< pixels
    int originalCanvasHeight = 0;
    int signalFreq = 0; ///< hertz
    int colorDepth = 0; ///< bits a channel
    int deviceMode = 0;
    int videoOutputMode = 0;
    int virtualPixStatus = 0;
    int virtualPixRouting = 0;
    int virtualPixRowOffset = 0;
    int virtualPixColOffset = 0;
    bool lowLatency = false;
    bool zeroLatency = false;
    int lowLatencyBoard = 0;
    bool fiberOut = false;
    int fiberMode = 0;
    bool uh5Change = false;
    SenderDMX dmx;

    // colour
    SExactColorParam exactColor;
    bool hdrEnable = false;
    EHDRStatus hdrStatus = HDRStatusOff;
    bool hdrDynamicCali = false;
    ETrasSpaceMode colorSpaceTransMode = TrasSpaceModeDefault;
    SHDRSetInfo hdrSet;
    bool cubeEnable = false;
    bool cubeAllSignal = false;
    float cubeGamma = 0;
    QList<SInputVideoColorCubeParam> cubes;
    SInputVideoColorCubeParam processorCube;
    bool curveEnable = false;
    bool curveAllSignal = false;
    QList<SInputVideoColorCurveParam> curves;
    SInputVideoColorCurveParam processorCurve;
    QList<SInputVideo3DLUTParam> luts;

    /// The picture values of the device class.
    const SPictureParam& Picture() const
    {
        return deviceClass == kPictureInFirstRecord ? firstPicture : picture;
    }
    SPictureParam& Picture() { return deviceClass == kPictureInFirstRecord ? firstPicture : picture; }

    auto Values() const
    {
        return std::tie(deviceClass, processorType, exportConfig, freezed, support, firstPicture, picture,
                        blackoutFadeTime, blackout, picAdjEnable, adjByColorTemp, betterGray, curColorRgb,
                        curTestModel, peakBrightness, vSync, vSyncFreq, vSyncDelay, vSyncMultiFreq,
                        vSyncMultiWay, vSyncMultiFlag, syncSource, syncLockSource, multi, stereo, inputVideos,
                        videoInfos, inputClips, inputEdids, inputJoints, balanced, hotBackup, inputAudio,
                        inputAudioV, inputVolume, inputRange, videoSelect, selVideoSourceIndex,
                        selSubBoardIndex, selSubBoardType, signalAbnormal, layers, cuttingLines, portGroups,
                        netPorts, netPortConfig, originalCanvasWidth, originalCanvasHeight, signalFreq,
                        colorDepth, deviceMode, videoOutputMode, virtualPixStatus, virtualPixRouting,
                        virtualPixRowOffset, virtualPixColOffset, lowLatency, zeroLatency, lowLatencyBoard,
                        fiberOut, fiberMode, uh5Change, dmx, exactColor, hdrEnable, hdrStatus, hdrDynamicCali,
                        colorSpaceTransMode, hdrSet, cubeEnable, cubeAllSignal, cubeGamma, cubes,
                        processorCube, curveEnable, curveAllSignal, curves, processorCurve, luts);
    }
};
