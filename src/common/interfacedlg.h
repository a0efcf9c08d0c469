#pragma once

/// The host's main views by number. Layout editing works on the selection of Design.
enum EInterfaceDlg : int
{
    InterfaceDeviceInformation = 0,
    InterfaceVideoDesign = 1,
    InterfaceControl = 2,
    InterfaceDesign = 3,
    InterfaceCalibration = 4,
    InterfaceSoftEdge = 5,
    InterfaceGamutAdjustment = 6,
    InterfaceMonitoring = 7,
};

constexpr int kInterfaceCount = 8;
