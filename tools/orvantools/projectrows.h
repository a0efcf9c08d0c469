#pragma once

#include "orvantools/textrows.h"

class CMonitorInterfaceData;
class CPort;
class CProjectData;
class CSender;
class QSize;
struct SMD5;

namespace OrvanTools {

TextRows ProjectRows(const CProjectData& project);       ///< current sender, sender groups, gamma
TextRows ParameterFileRows(const CProjectData& project); ///< by digest
TextRows SettingsRows(const CProjectData& project, const CMonitorInterfaceData& monitor);

/// Of the settings that have no row.
bool IsOtherMonitoringSame(const CMonitorInterfaceData& a, const CMonitorInterfaceData& b);

TextRows SenderRows(const CProjectData& project, const CSender& sender);
TextRows PortRows(const CPort& port); ///< without what it backs up

QString TypeText(const SMD5& type);    ///< the digest, or "none"
QString CanvasText(const QSize& size); ///< "1920x1080", or "none"
QString AddressText(unsigned long ip); ///< of a host-order IPv4 address, 192.168.1.10

} // namespace OrvanTools
