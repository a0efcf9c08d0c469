#include "params/records/senderparams.h"

void CSenderParams::SetDeviceClass(int deviceClass)
{
    m_deviceClass = deviceClass;
}

int CSenderParams::GetDeviceClass() const
{
    return m_deviceClass;
}

void CSenderParams::SetProcessorType(int type)
{
    m_processorType = type;
}

int CSenderParams::GetProcessorType() const
{
    return m_processorType;
}

bool CSenderParams::IsExportConfig() const
{
    return m_exportConfig;
}

void CSenderParams::SetExportConfig(bool exported)
{
    m_exportConfig = exported;
}

int CSenderParams::GetSignalFreq() const
{
    return m_signalFreq;
}

void CSenderParams::SetSignalFreq(int frequency)
{
    m_signalFreq = frequency;
}

int CSenderParams::GetColorDepth() const
{
    return m_colorDepth;
}

void CSenderParams::SetColorDepth(int depth)
{
    m_colorDepth = depth;
}
