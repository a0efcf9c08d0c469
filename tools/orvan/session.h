#pragma once

#include "privatefolder.h"

#include <QString>
#include <QTranslator>

/// The library at work in a documents folder of its own, so that looking at a project leaves the user's
/// folders as they were. Holds the library from Start to its end and removes the private folder then.
class Session
{
public:
    Session() = default;
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Starts the library. An empty folder means a private one; another one is made when missing and kept.
    /// False, with the reason, when the platform does not lead there.
    bool Start(const QString& documents, QString* why);

private:
    bool LeadTo(const QString& documents, QString* why);
    void Translate();

    PrivateFolder m_private; ///< settings that lead to the documents, scratch space, private documents
    QTranslator m_translator;
    bool m_started = false;
};
