#include "records/senderparams.h"

#include <algorithm>

namespace {

const QSharedDataPointer<SenderParamData>& DefaultData()
{
    static const QSharedDataPointer<SenderParamData> defaults(new SenderParamData);
    return defaults;
}

template <class Entry> bool Find(const QList<Entry>& entries, int slot, int source, Entry& found)
{
    for (const Entry& entry : entries)
        if (entry.slotNum == slot && entry.sourceIndex == source) {
            found = entry;
            return true;
        }
    return false;
}

/// As it was made when there is none.
template <class Entry> Entry Found(const QList<Entry>& entries, int slot, int source)
{
    Entry found;
    Find(entries, slot, source, found);
    return found;
}

template <class Entry> Entry& FindOrAdd(QList<Entry>& entries, int slot, int source)
{
    for (Entry& entry : entries)
        if (entry.slotNum == slot && entry.sourceIndex == source)
            return entry;
    Entry added;
    added.slotNum = slot;
    added.sourceIndex = source;
    entries.append(added);
    return entries.last();
}

bool IsWholeSender(int slot, int source)
{
    return slot == 0 && source == 0;
}

bool IsCurveChannel(int channel)
{
    return channel >= 0 && channel < kColorCurveChannels;
}

} // namespace

CSenderParams::CSenderParams() : m_data(DefaultData())
{}

bool CSenderParams::operator==(const CSenderParams& other) const
{
    return m_data == other.m_data || *m_data == *other.m_data;
}

float CSenderParams::GetBlackoutFadeTime() const
{
    return m_data->deviceClass == kPictureInFirstRecord ? m_data->blackoutFadeTime : 0.0F;
}

int CSenderParams::GetVSyncFreq() const
{
    return m_data->deviceClass == kPictureInFirstRecord ? 0 : m_data->vSyncFreq;
}

void CSenderParams::GetFrameSetting(SFrameRemapping* frame, int index) const
{
    if (frame && index >= 0 && index < kFrameRemappings)
        *frame = m_data->multi.frames[static_cast<size_t>(index)];
}

void CSenderParams::SetFrameSetting(const SFrameRemapping& frame, int index)
{
    if (index >= 0 && index < kFrameRemappings)
        m_data->multi.frames[static_cast<size_t>(index)] = frame;
}

void CSenderParams::GetLayerInfo(SLayerWndParam* layers) const
{
    if (layers)
        std::copy(m_data->layers.begin(), m_data->layers.end(), layers);
}

void CSenderParams::SetLayerInfo(const SLayerWndParam* layers)
{
    if (layers)
        std::copy_n(layers, kMaxLayers, m_data->layers.begin());
}

bool CSenderParams::GetColorCubeParam(SInputVideoColorCubeParam& cube, int slot, int source) const
{
    return Find(m_data->cubes, slot, source, cube);
}

void CSenderParams::SetColorCubeParam(const SInputVideoColorCubeParam& cube)
{
    FindOrAdd(m_data->cubes, cube.slotNum, cube.sourceIndex) = cube;
}

bool CSenderParams::GetColorCubeEnable(int slot, int source) const
{
    return IsWholeSender(slot, source) ? m_data->cubeEnable : Found(m_data->cubes, slot, source).enable;
}

void CSenderParams::SetColorCubeEnable(bool enable, int slot, int source)
{
    if (IsWholeSender(slot, source))
        m_data->cubeEnable = enable;
    else
        FindOrAdd(m_data->cubes, slot, source).enable = enable;
}

bool CSenderParams::GetColorCurveParam(SInputVideoColorCurveParam& curve, int slot, int source) const
{
    return Find(m_data->curves, slot, source, curve);
}

void CSenderParams::SetColorCurveParam(const SInputVideoColorCurveParam& curve)
{
    FindOrAdd(m_data->curves, curve.slotNum, curve.sourceIndex) = curve;
}

bool CSenderParams::GetColorCurveEnable(int slot, int source) const
{
    return IsWholeSender(slot, source) ? m_data->curveEnable : Found(m_data->curves, slot, source).enable;
}

void CSenderParams::SetColorCurveEnable(bool enable, int slot, int source)
{
    if (IsWholeSender(slot, source))
        m_data->curveEnable = enable;
    else
        FindOrAdd(m_data->curves, slot, source).enable = enable;
}

bool CSenderParams::GetColorCurveLock(int slot, int source) const
{
    return Found(m_data->curves, slot, source).lock;
}

void CSenderParams::SetColorCurveLock(bool lock, int slot, int source)
{
    FindOrAdd(m_data->curves, slot, source).lock = lock;
}

bool CSenderParams::GetColorCurveAdjPoint(int channel, QList<QPointF>& points, int slot, int source) const
{
    points.clear();
    SInputVideoColorCurveParam curve;
    if (!IsCurveChannel(channel) || !Find(m_data->curves, slot, source, curve))
        return false;
    points = curve.points[static_cast<size_t>(channel)];
    return true;
}

void CSenderParams::SetColorCurveAdjPoint(int channel, const QList<QPointF>& points, int slot, int source)
{
    if (IsCurveChannel(channel))
        FindOrAdd(m_data->curves, slot, source).points[static_cast<size_t>(channel)] = points;
}

SInputVideo3DLUTParam CSenderParams::Get3DLUTData(int slot, int source) const
{
    return Found(m_data->luts, slot, source);
}

void CSenderParams::Set3DLUTData(const SInputVideo3DLUTParam& lut)
{
    FindOrAdd(m_data->luts, lut.slotNum, lut.sourceIndex) = lut;
}

void CSenderParams::Set3DLUTEnable(bool enable, int slot, int source)
{
    FindOrAdd(m_data->luts, slot, source).enable = enable;
}

void CSenderParams::Set3DLUTFileName(const QString& name, int slot, int source)
{
    FindOrAdd(m_data->luts, slot, source).fileName = name;
}

void CSenderParams::Set3DLUTFileTitle(const QString& title, int slot, int source)
{
    FindOrAdd(m_data->luts, slot, source).fileTitle = title;
}

void CSenderParams::Set3DLutStrength(float strength, int slot, int source)
{
    FindOrAdd(m_data->luts, slot, source).strength = strength;
}
