#pragma once

#include "common/xmlwriter.h"

#include <QList>
#include <QString>

#include <functional>
#include <string>
#include <string_view>

class CCustomProgressbar;
class CPort;
class CSender;
class CTileGroupSet;
class CTileSet;
class LayoutProgress;
class QIODevice;

// Writers of the layout elements, for a stream and for a DOM tree alike.

void WriteTiles(XmlWriter& writer, std::string_view name, const CTileSet& tiles);
void WriteGroups(XmlWriter& writer, std::string_view name, const CTileGroupSet& groups);

/// The groups of one level, into an element that is begun; they are named `prefix` + "_1" and so on.
void WriteGroupLevel(XmlWriter& writer, const std::string& prefix, const CTileGroupSet& groups, int depth);

void WritePortElement(XmlWriter& writer, std::string_view name, const CPort& port);

/// With its device a sender says which processor it stands for, as project files do.
void WriteSenderElement(XmlWriter& writer, std::string_view name, const CSender& sender, bool withDevice,
                        LayoutProgress* progress = nullptr);

/// Why a file of these would not be read whole again; empty when it would.
QString WhyTooLarge(const QList<const CPort*>& ports);
QString WhyTooLarge(const QList<const CSender*>& senders); ///< their ports in use

/// That there are more children of this name than are read.
QString TooMany(const char* child, int most);

/// What tells the user how far it is; empty for none.
std::function<void(int)> Reports(CCustomProgressbar* progress);

/// Writes a document by `replace`, which makes a file of it. One that no reader would take is refused.
bool WriteXml(const std::function<bool(const std::function<bool(QIODevice&)>&, QString*)>& replace,
              const std::function<void(XmlWriter&)>& write, QString* error);

void WriteSenders(XmlWriter& writer, const QList<CSender*>& senders,
                  const std::function<void(int)>& progress);
