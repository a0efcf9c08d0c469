#pragma once

#include <QUuid>

class ParamsLookup;

/// Parameter files: the processor parameters of one or several senders, in a sender family ("SenderParams")
/// and a processor family ("DeviceParams"). With a null id the senders are those of the prepared choice, else
/// the one with that id, chosen or not. The results are those of paramresult.h.
namespace params {

quint32 ExportMutiSenderParam(ParamsLookup& lookup, const QString& path, const QUuid& id);
quint32 ExportMutiProcessorParam(ParamsLookup& lookup, const QString& path, const QUuid& id);

/// Files of several senders; one that is not marked as such is imported as a single one. An import ends at
/// the first sender that fails, which is told once.
quint32 ImportMutiSenderParam(ParamsLookup& lookup, const QString& path, const QUuid& id);
quint32 ImportMutiProcessorParam(ParamsLookup& lookup, const QString& path, const QUuid& id);

/// A file of one sender, whose values stand in the root or in "Processor_1".
quint32 ImportSenderParam(ParamsLookup& lookup, const QString& path, const QUuid& id);
quint32 ImportProcessorParam(ParamsLookup& lookup, const QString& path, const QUuid& id);

/// An address in a file: four decimal octets with dots, or one unsigned decimal number; 0 for anything else.
quint32 GetIntFromOctString(const QString& text);

} // namespace params
