#pragma once

/// Names of elements that more than one block or file knows.
namespace params {

constexpr const char* kSenderType = "SenderType";
constexpr const char* kDeviceClass = "DeviceClass";
constexpr const char* kNetIp = "NetIP";
constexpr const char* k3DRoot = "Set3DParam";
constexpr const char* kOtherRoot = "OtherParam";
constexpr const char* kAdvancedRoot = "AdvancedParam";

/// Red, green, blue, white, in the spelling that readers expect.
constexpr const char* kPrimaryNames[] = {"ColorRed", "ColorGreen", "ColorBlue", "ColorWrite"};

} // namespace params
