#pragma once

#include "common/export.h"

#include <QMetaType>
#include <QVector>

#include <functional>

class QDebug;

/// A port of the open project, by the place of its sender in the project.
struct SPortPlace
{
    int sender = -1;
    int port = -1;
};

inline bool operator==(const SPortPlace& a, const SPortPlace& b)
{
    return a.sender == b.sender && a.port == b.port;
}

inline bool operator!=(const SPortPlace& a, const SPortPlace& b)
{
    return !(a == b);
}

inline bool operator<(const SPortPlace& a, const SPortPlace& b)
{
    return a.sender != b.sender ? a.sender < b.sender : a.port < b.port;
}

/// What one operation changed in the open document.
struct SDocumentChange
{
    /// Loaded, set to default or copied from another: everything is new. Of the rest only `modifiedState` is
    /// told then.
    bool documentReplaced = false;
    /// Senders came or went, so that places name others now. `ports` is empty then: look at all.
    bool senders = false;
    /// What no history holds: names, sender groups, canvas, and processor parameters, of which a project file
    /// holds next to none. After PrjModify and whatever calls it, and after an import of parameters.
    bool properties = false;
    bool steps = false;         ///< what can be undone or redone
    QVector<SPortPlace> ports;  ///< with another layout, each once, in order; not those that back them up
    bool saved = false;         ///< written to a project file, or SetAsSaveStep was called
    bool modifiedState = false; ///< IsModidfied() is not what it was when the handler was set or last told
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SPortPlace& place);       ///< sender:port
ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SDocumentChange& change); ///< what is set

Q_DECLARE_METATYPE(SPortPlace)
Q_DECLARE_METATYPE(SDocumentChange)

using DocumentChangeHandler = std::function<void(const SDocumentChange&)>;
