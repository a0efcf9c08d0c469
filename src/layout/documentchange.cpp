#include "layout/documentchange.h"

#include <QDebug>

#include <utility>

QDebug operator<<(QDebug debug, const SPortPlace& place)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << place.sender << ':' << place.port;
    return debug;
}

QDebug operator<<(QDebug debug, const SDocumentChange& change)
{
    const QDebugStateSaver saver(debug);
    const std::pair<bool, const char*> parts[] = {{change.documentReplaced, "replaced"},
                                                  {change.senders, "senders"},
                                                  {change.properties, "properties"},
                                                  {change.steps, "steps"},
                                                  {change.saved, "saved"},
                                                  {change.modifiedState, "modified"}};
    const char* separator = "";
    debug.nospace() << "SDocumentChange(";
    for (const auto& [set, name] : parts)
        if (set)
            debug << std::exchange(separator, " ") << name;
    for (const SPortPlace& place : change.ports)
        debug << std::exchange(separator, " ") << place;
    debug << ')';
    return debug;
}
