#pragma once

#include "project/layoutdescription.h"

class CPort;
class CSender;
class CTileGroup;

/// How much of a sender's own attributes a reader takes.
enum class SenderParts
{
    Project,       ///< everything: the sender comes into being
    LayoutOnly,    ///< the port count and recent port; the sender stays who it is
    LayoutAndView, ///< also names, background image, canvas and what else describes how it is shown
};

GroupRecord RecordOf(const CTileGroup& group);
PortRecord RecordOf(const CPort& port);
SenderRecord RecordOf(const CSender& sender);

/// The port's own attributes; its layout is untouched.
void ApplyRecord(const PortRecord& record, const QUuid& senderId, int portIndex, CPort& port);
void ApplyRecord(const SenderRecord& record, SenderParts parts, CSender& sender);
