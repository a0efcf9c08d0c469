#pragma once

#include <QtGlobal>

class CSender;
class QDomDocument;
class QDomElement;

/// Colour cubes and curves of the inputs. With `perSource` the entries carry their source index and enable,
/// without it they stand for a card slot. kFailed for a null sender or element.
namespace params {

quint32 SaveColorCubeParam(QDomDocument& document, QDomElement* parent, const CSender* sender,
                           bool perSource);
/// `element` is the block or the element around it.
quint32 LoadColorCubeParam(QDomDocument& document, const QDomElement& element, CSender* sender,
                           bool perSource);
/// The curves stand directly in `parent`.
quint32 SaveColorCurveParam(QDomDocument& document, QDomElement* parent, const CSender* sender,
                            bool perSource);
quint32 LoadColorCurveParam(QDomDocument& document, const QDomElement& element, CSender* sender,
                            bool perSource);
bool HasColorCurveParam(const QDomElement& element);

} // namespace params
