#pragma once

#include "privatefolder.h"

#include <QString>
#include <QTranslator>

/// Runs the library in a documents folder of its own, so that looking at a project changes nothing in the
/// folders of the user. From Start to its end it holds the library; then it removes the private folder.
class Session
{
public:
    Session() = default;
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Starts the library. An empty folder means a private one. Another folder is made when it is missing,
    /// and kept. False, with the reason, when the platform does not use it.
    bool Start(const QString& documents, QString* why);

private:
    bool LeadTo(const QString& documents, QString* why);
    void Translate();

    PrivateFolder m_private; ///< settings that lead to the documents, scratch space, private documents
    QTranslator m_translator;
    bool m_started = false;
};
