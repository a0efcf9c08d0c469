#pragma once

#include <QtGlobal>

class CSender;
class QDomDocument;
class QDomElement;

/// The video inputs of a sender, by input card.
namespace params {

/// kFailed, with nothing written, for a null pointer and for a sender without inputs.
quint32 SaveInputParam(QDomDocument& document, QDomElement* element, const CSender* sender);
/// Replaces the inputs. 1, not kFailed, for a null pointer: callers know it so.
quint32 LoadInputParam(QDomDocument& document, const QDomElement* element, CSender* sender);

} // namespace params
