#pragma once

#include <QtGlobal>

class CSender;
class QDomDocument;
class QDomElement;

/// The blocks of a parameter file about the device as a whole. Each function gives kDone, or kFailed, with
/// nothing written or read, for a null sender or element.
namespace params {

quint32 SaveBasicInfoParam(QDomDocument& document, const CSender* sender, QDomElement* element);
/// Compares the processor type of the block with the sender's and tells the user when they differ or there is
/// none; the device class may differ. Changes nothing.
quint32 LoadBasicInfoParam(QDomDocument& document, const QDomElement* element, const CSender* sender);
/// The same without a message: kDone, kTypeDiffers, or kImportFailed without a type.
quint32 CheckBasicInfo(const QDomElement& element, const CSender& sender);

quint32 SaveDeviceSetParam(QDomDocument& document, QDomElement* element, const CSender* sender);
quint32 LoadDeviceSetParam(QDomDocument& document, const QDomElement* element, CSender* sender);

// Written into an element of their own below the one given, read from that element.
quint32 SaveMultiParam(QDomDocument& document, QDomElement* element, const CSender* sender);
quint32 LoadMultiParam(QDomDocument& document, const QDomElement& element, CSender* sender);
quint32 Save3DParam(QDomDocument& document, QDomElement* element, const CSender* sender);
quint32 Load3DParam(QDomDocument& document, const QDomElement& element, CSender* sender);

} // namespace params
