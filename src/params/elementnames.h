#pragma once

#include <QDomElement>

/// Names of elements that more than one block or file knows.
namespace params {

constexpr const char* kSenderFileRoot = "SenderParams";
constexpr const char* kProcessorFileRoot = "DeviceParams";

constexpr const char* kDeviceType = "DeviceType";
constexpr const char* kSenderType = "SenderType";
constexpr const char* kDeviceClass = "DeviceClass";
constexpr const char* kNetIp = "NetIP";

constexpr const char* kBasicRoot = "basicInfoParamsXmlRoot";
constexpr const char* kMultiRoot = "DeviceSetParamsMultiRoot";
constexpr const char* k3DRoot = "Set3DParam";
constexpr const char* kOtherRoot = "OtherParam";
constexpr const char* kAdvancedRoot = "AdvancedParam";
constexpr const char* kCuttingLineRoot = "outputSpiltLineParamRoot";
constexpr const char* kColorCubeRoot = "ColorCubeParamRoot";
constexpr const char* kColorCurveRoot = "ColorCurveParamRoot"; ///< read only; written without a root

/// The block `name` for a caller that gives it, or the element around it.
inline QDomElement SelfOrChild(const QDomElement& element, const char* name)
{
    const QDomElement child = element.firstChildElement(QLatin1String(name));
    return child.isNull() ? element : child;
}

} // namespace params
