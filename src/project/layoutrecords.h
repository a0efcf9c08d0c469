#pragma once

#include "project/layoutdescription.h"

#include <memory>

class CPort;
class CSender;
class CTile;
class CTileGroup;

/// How much of a sender's own attributes a reader takes.
enum class SenderParts
{
    Project,       ///< everything: the sender comes into being
    LayoutOnly,    ///< the port count and recent port; the sender stays who it is
    LayoutAndView, ///< also names, background image, canvas and what else describes how it is shown
};

TileRecord RecordOf(const CTile& tile);
GroupRecord RecordOf(const CTileGroup& group);
PortRecord RecordOf(const CPort& port);
SenderRecord RecordOf(const CSender& sender);

/// A cabinet as the record says. A null sender id or a port of -1 takes the record's own.
std::unique_ptr<CTile> MakeTile(const TileRecord& record, const QUuid& senderId, int portIndex);

/// The port's own attributes; its layout is untouched.
void ApplyRecord(const PortRecord& record, const QUuid& senderId, int portIndex, CPort& port);
void ApplyRecord(const SenderRecord& record, SenderParts parts, CSender& sender);
