#pragma once

#include "records/exactcolorparam.h"

class CSender;
class QDomDocument;
class QDomElement;

/// The output side of a sender: its ports, and an output group with canvas, layers, split lines and colour. A
/// section that is absent leaves the sender as it is. kFailed for a null sender or element.
namespace params {

quint32 SaveOutputParam(QDomDocument& document, const CSender* sender, QDomElement* element);
quint32 LoadOutputParam(QDomDocument& document, const QDomElement* element, CSender* sender);
quint32 LoadVideoOutParam(QDomDocument& document, const QDomElement* element,
                          CSender* sender); ///< port areas

/// `element` is that of the group, here and below; groups count from 0.
quint32 SaveOneGroupParam(QDomDocument& document, QDomElement* element, int group, const CSender* sender);
/// Group 0 replaces the layers, later ones fill the empty entries.
quint32 LoadOneGroupParam(QDomDocument& document, const QDomElement* element, int group, CSender* sender);
quint32 LoadOutputSpiltLineParam(QDomDocument& document, const QDomElement* element, int group,
                                 CSender* sender);
quint32 LoadOutputColorBrightParam(QDomDocument& document, const QDomElement* element, int group,
                                   CSender* sender);
quint32 LoadOutputExactColorParam(QDomDocument& document, const QDomElement* element, int group,
                                  CSender* sender);

} // namespace params
