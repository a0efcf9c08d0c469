#pragma once

#include "common/xmlwriter.h"

#include <QList>
#include <QString>

#include <functional>
#include <string>
#include <string_view>

class CPort;
class CSender;
class CTileGroupSet;
class CTileSet;

// Writers of the layout elements, for a stream and for a DOM tree alike.

void WriteTiles(XmlWriter& writer, std::string_view name, const CTileSet& tiles);
void WriteGroups(XmlWriter& writer, std::string_view name, const CTileGroupSet& groups);

/// The groups of one level, into an element that is begun; they are named `prefix` + "_1" and so on.
void WriteGroupLevel(XmlWriter& writer, const std::string& prefix, const CTileGroupSet& groups, int depth);

void WritePortElement(XmlWriter& writer, std::string_view name, const CPort& port);

/// With its device a sender says which processor it stands for, as project files do.
void WriteSenderElement(XmlWriter& writer, std::string_view name, const CSender& sender, bool withDevice);

/// Why a file of these would not be read whole again; empty when it would.
QString WhyTooLarge(const QList<const CPort*>& ports);
QString WhyTooLarge(const QList<const CSender*>& senders); ///< their ports in use

/// That there are more children of this name than are read.
QString TooMany(const char* child, int most);

void WriteSenders(XmlWriter& writer, const QList<CSender*>& senders,
                  const std::function<void(int)>& progress);
