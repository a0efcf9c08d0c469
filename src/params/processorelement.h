#pragma once

#include <QtGlobal>

class CSender;
class QDomDocument;
class QDomElement;

/// One processor of a processor parameter file.
namespace params {

/// kFailed for a null sender or element.
quint32 WriteSingleProcessorParam(QDomDocument& document, QDomElement* element, const CSender* sender);

/// Every block that is there, shown or not by this system's own files. The type is compared before anything
/// is applied: kTypeDiffers when the sender's is another, kImportFailed without one or for a null pointer.
/// Shows no message.
quint32 ReadSingleProcessorParam(QDomDocument& document, const QDomElement* element, CSender* sender);

/// The import of a single-processor file: its basic, output, group, input, device and other blocks in the
/// order of the document. Ends at a basic block that does not fit, whose kTypeDiffers or kImportFailed it
/// gives. Shows no message.
quint32 ImportProcessorBlocks(QDomDocument& document, const QDomElement& element, CSender* sender);

} // namespace params
