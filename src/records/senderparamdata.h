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
struct SenderParamData : QSharedData, WalkedRecord<SenderParamData>
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

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        WalkPictureAndSync(f, r...);
        WalkInputs(f, r...);
        WalkOutputs(f, r...);
        WalkColor(f, r...);
    }

private:
    template <class Fields, class... Records> static void WalkPictureAndSync(Fields& f, Records&... r)
    {
        f.Unnamed(r.deviceClass...);
        f.Unnamed(r.processorType...);
        f.Unnamed(r.exportConfig...);
        f.Unnamed(r.freezed...);
        f.Unnamed(r.support...);
        f.Unnamed(r.firstPicture...);
        f.Unnamed(r.picture...);
        f.Unnamed(r.blackoutFadeTime...);
        f.Unnamed(r.blackout...);
        f.Unnamed(r.picAdjEnable...);
        f.Unnamed(r.adjByColorTemp...);
        f.Unnamed(r.betterGray...);
        f.Unnamed(r.curColorRgb...);
        f.Unnamed(r.curTestModel...);
        f.Unnamed(r.peakBrightness...);
        f.Unnamed(r.vSync...);
        f.Unnamed(r.vSyncFreq...);
        f.Unnamed(r.vSyncDelay...);
        f.Unnamed(r.vSyncMultiFreq...);
        f.Unnamed(r.vSyncMultiWay...);
        f.Unnamed(r.vSyncMultiFlag...);
        f.Unnamed(r.syncSource...);
        f.Unnamed(r.syncLockSource...);
        f.Unnamed(r.multi...);
        f.Unnamed(r.stereo...);
    }

    template <class Fields, class... Records> static void WalkInputs(Fields& f, Records&... r)
    {
        f.Unnamed(r.inputVideos...);
        f.Unnamed(r.videoInfos...);
        f.Unnamed(r.inputClips...);
        f.Unnamed(r.inputEdids...);
        f.Unnamed(r.inputJoints...);
        f.Unnamed(r.balanced...);
        f.Unnamed(r.hotBackup...);
        f.Unnamed(r.inputAudio...);
        f.Unnamed(r.inputAudioV...);
        f.Unnamed(r.inputVolume...);
        f.Unnamed(r.inputRange...);
        f.Unnamed(r.videoSelect...);
        f.Unnamed(r.selVideoSourceIndex...);
        f.Unnamed(r.selSubBoardIndex...);
        f.Unnamed(r.selSubBoardType...);
        f.Unnamed(r.signalAbnormal...);
    }

    template <class Fields, class... Records> static void WalkOutputs(Fields& f, Records&... r)
    {
        f.Unnamed(r.layers...);
        f.Unnamed(r.cuttingLines...);
        f.Unnamed(r.portGroups...);
        f.Unnamed(r.netPorts...);
        f.Unnamed(r.netPortConfig...);
        f.Unnamed(r.originalCanvasWidth...);
        f.Unnamed(r.originalCanvasHeight...);
        f.Unnamed(r.signalFreq...);
        f.Unnamed(r.colorDepth...);
        f.Unnamed(r.deviceMode...);
        f.Unnamed(r.videoOutputMode...);
        f.Unnamed(r.virtualPixStatus...);
        f.Unnamed(r.virtualPixRouting...);
        f.Unnamed(r.virtualPixRowOffset...);
        f.Unnamed(r.virtualPixColOffset...);
        f.Unnamed(r.lowLatency...);
        f.Unnamed(r.zeroLatency...);
        f.Unnamed(r.lowLatencyBoard...);
        f.Unnamed(r.fiberOut...);
        f.Unnamed(r.fiberMode...);
        f.Unnamed(r.uh5Change...);
        f.Unnamed(r.dmx...);
    }

    template <class Fields, class... Records> static void WalkColor(Fields& f, Records&... r)
    {
        f.Unnamed(r.exactColor...);
        f.Unnamed(r.hdrEnable...);
        f.Unnamed(r.hdrStatus...);
        f.Unnamed(r.hdrDynamicCali...);
        f.Unnamed(r.colorSpaceTransMode...);
        f.Unnamed(r.hdrSet...);
        f.Unnamed(r.cubeEnable...);
        f.Unnamed(r.cubeAllSignal...);
        f.Unnamed(r.cubeGamma...);
        f.Unnamed(r.cubes...);
        f.Unnamed(r.processorCube...);
        f.Unnamed(r.curveEnable...);
        f.Unnamed(r.curveAllSignal...);
        f.Unnamed(r.curves...);
        f.Unnamed(r.processorCurve...);
        f.Unnamed(r.luts...);
    }
};
