#pragma once

#include "common/export.h"
#include "records/senderparamdata.h"

#include <QSharedDataPointer>

/// The processor parameters of one sender, a value. Units and ranges that no comment names are the device's.
class ORVANDATA_EXPORT CSenderParams
{
public:
    CSenderParams();
    bool operator==(const CSenderParams& other) const;
    bool operator!=(const CSenderParams& other) const { return !(*this == other); }

    // device
    int GetDeviceClass() const { return m_data->deviceClass; }
    void SetDeviceClass(int value) { m_data->deviceClass = value; }
    int GetProcessorType() const { return m_data->processorType; }
    void SetProcessorType(int value) { m_data->processorType = value; }
    bool IsExportConfig() const { return m_data->exportConfig; }
    void SetExportConfig(bool value) { m_data->exportConfig = value; }
    bool IsFreezed() const { return m_data->freezed; }
    void SetFreezed(bool value) { m_data->freezed = value; }
    SSupportOptionsInfo GetProcessorSupportInfo() const { return m_data->support; }
    void SetProcessorSupportInfo(const SSupportOptionsInfo& value) { m_data->support = value; }

    // picture: device class 4 reads and writes a record of its own
    int GetBrightness() const { return m_data->Picture().brightness; }
    void SetBrightness(int value) { m_data->Picture().brightness = value; }
    int GetColorTempValue() const { return m_data->Picture().colorTemp; }
    void SetColorTempValue(int value) { m_data->Picture().colorTemp = value; }
    int GetHueValue() const { return m_data->Picture().hue; }
    void SetHueValue(int value) { m_data->Picture().hue = value; }
    int GetSatuValue() const { return m_data->Picture().saturation; }
    void SetSatuValue(int value) { m_data->Picture().saturation = value; }
    int GetBrightCompValue() const { return m_data->Picture().brightComp; }
    void SetBrightCompValue(int value) { m_data->Picture().brightComp = value; }
    int GetContrastValue() const { return m_data->Picture().contrast; }
    void SetContrastValue(int value) { m_data->Picture().contrast = value; }
    float GetFadeTime() const { return m_data->Picture().fadeTime; } ///< seconds
    void SetFadeTime(float value) { m_data->Picture().fadeTime = value; }
    float GetBlackoutFadeTime() const; ///< seconds; 0 but for device class 4
    void SetBlackoutFadeTime(float value) { m_data->blackoutFadeTime = value; }
    bool IsBlackout() const { return m_data->blackout; }
    void SetBlackout(bool value) { m_data->blackout = value; }
    bool IsPicAdjEnable() const { return m_data->picAdjEnable; }
    void SetPicAdjEnable(bool value) { m_data->picAdjEnable = value; }
    bool IsAdjByColorTemp() const { return m_data->adjByColorTemp; }
    void SetAdjByColorTemp(bool value) { m_data->adjByColorTemp = value; }
    bool IsBetterGray() const { return m_data->betterGray; }
    void SetBetterGray(bool value) { m_data->betterGray = value; }
    QColor GetCurColorRGB() const { return m_data->curColorRgb; }
    void SetCurColorRGB(const QColor& value) { m_data->curColorRgb = value; }
    int GetCurTestModel() const { return m_data->curTestModel; }
    void SetCurTestModel(int value) { m_data->curTestModel = value; }
    SSenderPeakBrightness GetPeakBrightnessCoef() const { return m_data->peakBrightness; }
    void SetPeakBrightnessCoef(const SSenderPeakBrightness& value) { m_data->peakBrightness = value; }
    void SetPeakBrightnessCoefTable(const SSenderPeakBrightness& value) { m_data->peakBrightness = value; }
    bool GetDynamicBrightnessEnabled() const { return m_data->peakBrightness.enable; }
    void SetDynamicBrightnessEnabled(bool value) { m_data->peakBrightness.enable = value; }
    int GetDynamicBrightnessSharpen() const { return m_data->peakBrightness.sharpen; }
    void SetDynamicBrightnessSharpen(int value) { m_data->peakBrightness.sharpen = value; }

    // synchronisation
    SVSyncParam GetVSyncInfo() const { return m_data->vSync; }
    void SetVSyncInfo(const SVSyncParam& value) { m_data->vSync = value; }
    int GetVSyncFreq() const; ///< hertz; 0 for device class 4
    void SetVSyncFreq(int value) { m_data->vSyncFreq = value; }
    int GetVsyncDelay() const { return m_data->vSyncDelay; }
    void SetVsyncDelay(int value) { m_data->vSyncDelay = value; }
    int GetVSyncMultiFreq() const { return m_data->vSyncMultiFreq; }
    void SetVSyncMultiFreq(int value) { m_data->vSyncMultiFreq = value; }
    int GetVSyncMultiWay() const { return m_data->vSyncMultiWay; }
    void SetVSyncMultiWay(int value) { m_data->vSyncMultiWay = value; }
    int GetVSyncMultiFlag() const { return m_data->vSyncMultiFlag; }
    void SetVSyncMultiFlag(int value) { m_data->vSyncMultiFlag = value; }
    bool IsSyncSource() const { return m_data->syncSource; }
    void SetSyncSource(bool value) { m_data->syncSource = value; }
    int GetSyncLockSocue() const { return m_data->syncLockSource; }
    void SetSyncLockSocue(int value) { m_data->syncLockSource = value; }
    SFrequencyFrameMultiParam GetFrequencyFrameMultiParam() const { return m_data->multi; }
    void SetFrequencyFrameMultiParam(const SFrequencyFrameMultiParam& value) { m_data->multi = value; }
    quint8 GetFrequencyFlag() const { return m_data->multi.frequencyFlag; }
    void SetFrequencyFlag(quint8 value) { m_data->multi.frequencyFlag = value; }
    quint8 GetFrequencySetting() const { return m_data->multi.frequencySetting; }
    void SetFrequencySetting(quint8 value) { m_data->multi.frequencySetting = value; }
    quint8 GetFrequencyCount() const { return m_data->multi.frequencyCount; }
    void SetFrequencyCount(quint8 value) { m_data->multi.frequencyCount = value; }
    quint8 GetFrameFlag() const { return m_data->multi.frameFlag; }
    void SetFrameFlag(quint8 value) { m_data->multi.frameFlag = value; }
    quint8 GetFrameCount() const { return m_data->multi.frameCount; }
    void SetFrameCount(quint8 value) { m_data->multi.frameCount = value; }
    void GetFrameSetting(SFrameRemapping* frame, int index) const; ///< index 0 to 9, others are ignored
    void SetFrameSetting(const SFrameRemapping& frame, int index);
    Sender3D Get3D() const { return m_data->stereo; }
    void Set3D(const Sender3D& value) { m_data->stereo = value; }
    bool Get3DEnable() const { return m_data->stereo.enable; }
    void Set3DEnable(bool value) { m_data->stereo.enable = value; }

    // inputs
    QList<SInputVideoParam> GetInputVideoInfo() const { return m_data->inputVideos; }
    void SetInputVideoInfo(const QList<SInputVideoParam>& value) { m_data->inputVideos = value; }
    QList<SenderVideoInfo> GetSenderVideoInfo() const { return m_data->videoInfos; }
    void SetSenderVideoInfo(const QList<SenderVideoInfo>& value) { m_data->videoInfos = value; }
    QList<SenderVideoInputClip> GetInputClipInfo() const { return m_data->inputClips; }
    void SetInputClipInfo(const QList<SenderVideoInputClip>& value) { m_data->inputClips = value; }
    QList<SenderEDID> GetInputEDIDInfo() const { return m_data->inputEdids; }
    void SetInputEDIDInfo(const QList<SenderEDID>& value) { m_data->inputEdids = value; }
    QList<SenderJointOffset> GetInputJointOffsetInfo() const { return m_data->inputJoints; }
    void SetInputJointOffsetInfo(const QList<SenderJointOffset>& value) { m_data->inputJoints = value; }
    QList<SenderBalanced> GetSenderBalancedSetting() const { return m_data->balanced; }
    void SetSenderBalancedSetting(const QList<SenderBalanced>& value) { m_data->balanced = value; }
    SInputVideoHotBackup GetHotBackupInfo() const { return m_data->hotBackup; }
    void SetHotBackupInfo(const SInputVideoHotBackup& value) { m_data->hotBackup = value; }
    int GetInputAudio() const { return m_data->inputAudio; }
    void SetInputAudio(int value) { m_data->inputAudio = value; }
    SSignalPosInfo GetInputAudioV() const { return m_data->inputAudioV; }
    void SetInputAudioV(const SSignalPosInfo& value) { m_data->inputAudioV = value; }
    int GetInputVolume() const { return m_data->inputVolume; }
    void SetInputVolume(int value) { m_data->inputVolume = value; }
    int GetInputRange() const { return m_data->inputRange; }
    void SetInputRange(int value) { m_data->inputRange = value; }
    EVideoSelect GetVideoSetInfo() const { return m_data->videoSelect; }
    void SetVideoSetInfo(EVideoSelect value) { m_data->videoSelect = value; }
    int GetSelVideoSourceIndex() const { return m_data->selVideoSourceIndex; }
    void SetSelVideoSourceIndex(int value) { m_data->selVideoSourceIndex = value; }
    int GetSelSubBoardIndex() const { return m_data->selSubBoardIndex; }
    void SetSelSubBoardIndex(int value) { m_data->selSubBoardIndex = value; }
    int GetSelSubBoardType() const { return m_data->selSubBoardType; }
    void SetSelSubBoardType(int value) { m_data->selSubBoardType = value; }
    bool IsSignalAbnormal() const { return m_data->signalAbnormal; }
    void SetSignalAbnormal(bool value) { m_data->signalAbnormal = value; }

    // outputs; a table is copied whole, 64 layers, and a null pointer is ignored
    void GetLayerInfo(SLayerWndParam* layers) const;
    void SetLayerInfo(const SLayerWndParam* layers);
    SCuttingLineParam GetCuttingLineInfo() const { return m_data->cuttingLines; }
    void SetCuttingLineInfo(const SCuttingLineParam& value) { m_data->cuttingLines = value; }
    SPortGroupParam GetPortGroupInfo() const { return m_data->portGroups; }
    void SetPortGroupInfo(const SPortGroupParam& value) { m_data->portGroups = value; }
    QList<int> GetMultiNetPortInfo() const { return m_data->netPorts; } ///< brightness of each output port
    void SetMultiNetPortInfo(const QList<int>& value) { m_data->netPorts = value; }
    int GetNetPortConfig() const { return m_data->netPortConfig; }
    void SetNetPortConfig(int value) { m_data->netPortConfig = value; }
    int GetOriginalCanvaWidth() const { return m_data->originalCanvasWidth; } ///< pixels
    void SetOriginalCanvaWidth(int value) { m_data->originalCanvasWidth = value; }
    int GetOriginalCanvaHeight() const { return m_data->originalCanvasHeight; }
    void SetOriginalCanvaHeight(int value) { m_data->originalCanvasHeight = value; }
    int GetSignalFreq() const { return m_data->signalFreq; } ///< hertz
    void SetSignalFreq(int value) { m_data->signalFreq = value; }
    int GetColorDepth() const { return m_data->colorDepth; } ///< bits a channel
    void SetColorDepth(int value) { m_data->colorDepth = value; }
    int GetDeviceMode() const { return m_data->deviceMode; }
    void SetDeviceMode(int value) { m_data->deviceMode = value; }
    int GetVideoOutputMode() const { return m_data->videoOutputMode; }
    void SetVideoOutputMode(int value) { m_data->videoOutputMode = value; }
    int GetVirtualPixStatus() const { return m_data->virtualPixStatus; }
    void SetVirtualPixStatus(int value) { m_data->virtualPixStatus = value; }
    int GetVirtualPixRouting() const { return m_data->virtualPixRouting; }
    void SetVirtualPixRouting(int value) { m_data->virtualPixRouting = value; }
    int GetVirtualPixRowOffset() const { return m_data->virtualPixRowOffset; }
    void SetVirtualPixRowOffset(int value) { m_data->virtualPixRowOffset = value; }
    int GetVirtualPixColOffset() const { return m_data->virtualPixColOffset; }
    void SetVirtualPixColOffset(int value) { m_data->virtualPixColOffset = value; }
    bool IsLowLatency() const { return m_data->lowLatency; }
    void SetLowLatency(bool value) { m_data->lowLatency = value; }
    bool IsZeroLatency() const { return m_data->zeroLatency; }
    void SetZeroLatency(bool value) { m_data->zeroLatency = value; }
    int GetLowLatencyBoard() const { return m_data->lowLatencyBoard; }
    void SetLowLatencyBoard(int value) { m_data->lowLatencyBoard = value; }
    bool IsFiberout() const { return m_data->fiberOut; }
    void SetFiberout(bool value) { m_data->fiberOut = value; }
    int GetFiberMode() const { return m_data->fiberMode; }
    void SetFiberMode(int value) { m_data->fiberMode = value; }
    bool IsUh5change() const { return m_data->uh5Change; }
    void SetUh5change(bool value) { m_data->uh5Change = value; }
    SenderDMX GetDMX() const { return m_data->dmx; }
    void SetDMX(const SenderDMX& value) { m_data->dmx = value; }

    // colour
    SExactColorParam GetExactColorInfo() const { return m_data->exactColor; }
    void SetExactColorInfo(const SExactColorParam& value) { m_data->exactColor = value; }
    bool IsExactColorEnable() const { return m_data->exactColor.enable; }
    void SetExactColor(bool value) { m_data->exactColor.enable = value; }
    bool IsHDREnable() const { return m_data->hdrEnable; }
    void SetHDREnable(bool value) { m_data->hdrEnable = value; }
    EHDRStatus GetHDRStatus() const { return m_data->hdrStatus; }
    void SetHDRStatus(EHDRStatus value) { m_data->hdrStatus = value; }
    bool IsHDRDynamicCali() const { return m_data->hdrDynamicCali; }
    void SetHDRDynamicCali(bool value) { m_data->hdrDynamicCali = value; }
    SHDRSetInfo GetHDRSetInfo() const { return m_data->hdrSet; }
    void SetHDRSetInfo(const SHDRSetInfo& value) { m_data->hdrSet = value; }
    ETrasSpaceMode GetColorSpaceTransMode() const { return m_data->colorSpaceTransMode; }
    void SetColorSpaceTransMode(ETrasSpaceMode value) { m_data->colorSpaceTransMode = value; }

    // colour cubes by card slot and source index; (0, 0) names the enable of the whole sender
    QList<SInputVideoColorCubeParam> GetColorCubeParams() const { return m_data->cubes; }
    void SetColorCubeParams(const QList<SInputVideoColorCubeParam>& value) { m_data->cubes = value; }
    bool GetColorCubeParam(SInputVideoColorCubeParam& cube, int slot, int source) const; ///< false: none
    void SetColorCubeParam(const SInputVideoColorCubeParam& cube); ///< replaces its input's, or adds it
    bool GetColorCubeEnable(int slot, int source) const;           ///< false without a cube
    void SetColorCubeEnable(bool enable, int slot, int source);
    bool GetColorCubeIsAllSignal() const { return m_data->cubeAllSignal; }
    void SetColorCubeIsAllSignal(bool value) { m_data->cubeAllSignal = value; }
    float GetColorCubeGamma() const { return m_data->cubeGamma; }
    void SetColorCubeGamma(float value) { m_data->cubeGamma = value; }
    SInputVideoColorCubeParam GetProcessorColorCubeInfo() const { return m_data->processorCube; }
    void SetProcessorColorCubeInfo(const SInputVideoColorCubeParam& value) { m_data->processorCube = value; }

    // colour curves, likewise; setting a value of an input without curves adds them
    QList<SInputVideoColorCurveParam> GetColorCurveParams() const { return m_data->curves; }
    void SetColorCurveParams(const QList<SInputVideoColorCurveParam>& value) { m_data->curves = value; }
    bool GetColorCurveParam(SInputVideoColorCurveParam& curve, int slot, int source) const;
    void SetColorCurveParam(const SInputVideoColorCurveParam& curve);
    bool GetColorCurveEnable(int slot, int source) const;
    void SetColorCurveEnable(bool enable, int slot, int source);
    bool GetColorCurveLock(int slot, int source) const;
    void SetColorCurveLock(bool lock, int slot, int source);
    /// Channels 0 to 3: see EColorCurveChannel. False, and no points, for an input without curves.
    bool GetColorCurveAdjPoint(int channel, QList<QPointF>& points, int slot, int source) const;
    void SetColorCurveAdjPoint(int channel, const QList<QPointF>& points, int slot, int source);
    bool GetColorCurveIsAllSignal() const { return m_data->curveAllSignal; }
    void SetColorCurveIsAllSignal(bool value) { m_data->curveAllSignal = value; }
    SInputVideoColorCurveParam GetProcessorColorCurveInfo() const { return m_data->processorCurve; }
    void SetProcessorColorCurveInfo(const SInputVideoColorCurveParam& value)
    {
        m_data->processorCurve = value;
    }

    // look-up tables by card slot and source index; setting a value of an input without one adds it
    SInputVideo3DLUTParam Get3DLUTData(int slot, int source) const; ///< an empty one when absent
    void Set3DLUTData(const SInputVideo3DLUTParam& lut);
    void Reset3DLUTData() { m_data->luts.clear(); }
    bool Get3DLUTEnable(int slot, int source) const { return Get3DLUTData(slot, source).enable; }
    void Set3DLUTEnable(bool enable, int slot, int source);
    QString Get3DLUTFileName(int slot, int source) const { return Get3DLUTData(slot, source).fileName; }
    void Set3DLUTFileName(const QString& name, int slot, int source);
    QString Get3DLUTFileTitle(int slot, int source) const { return Get3DLUTData(slot, source).fileTitle; }
    void Set3DLUTFileTitle(const QString& title, int slot, int source);
    float Get3DLUTStrength(int slot, int source) const { return Get3DLUTData(slot, source).strength; }
    void Set3DLutStrength(float strength, int slot, int source);

    // all values at once, for readers and writers
    const SenderParamData& Params() const { return *m_data; }
    SenderParamData& Params() { return *m_data; } ///< [ref] only until the next copy is taken

private:
    QSharedDataPointer<SenderParamData> m_data;
};
