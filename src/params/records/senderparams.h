#pragma once

#include "common/export.h"

/// The processor parameters of one sender, held by value.
class ORVANDATA_EXPORT CSenderParams
{
public:
    void SetDeviceClass(int deviceClass); ///< class 4 keeps its picture values in a record of their own
    int GetDeviceClass() const;
    void SetProcessorType(int type);
    int GetProcessorType() const;
    bool IsExportConfig() const;
    void SetExportConfig(bool exported);
    int GetSignalFreq() const; ///< hertz
    void SetSignalFreq(int frequency);
    int GetColorDepth() const; ///< bits a channel
    void SetColorDepth(int depth);

private:
    int m_deviceClass = 0;
    int m_processorType = 0;
    int m_signalFreq = 0;
    int m_colorDepth = 0;
    bool m_exportConfig = false;
};
