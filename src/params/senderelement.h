#pragma once

#include <QtGlobal>

class CSender;
class QDomDocument;
class QDomElement;

/// One sender of a sender parameter file.
namespace params {

/// kFailed for a null sender or element.
quint32 WriteSingleSenderParam(QDomDocument& document, QDomElement* element, const CSender* sender);

/// What is there; an absent part leaves the sender as it is. The type is compared before anything is applied:
/// kTypeDiffers when the sender's is another, kImportFailed without one or for a null pointer. Shows no
/// message.
quint32 ReadSingleSenderParam(QDomDocument& document, const QDomElement* element, CSender* sender);

} // namespace params
