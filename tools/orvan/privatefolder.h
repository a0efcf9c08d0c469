#pragma once

#include <QString>

#include <csignal>

/// A folder of this run in the platform's temporary folder, gone with the object and also when a signal or a
/// closed pipe ends the program. Folders of runs that were killed are removed when one is made. One at a
/// time.
class PrivateFolder
{
public:
    PrivateFolder();
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    bool IsValid() const { return m_error.isEmpty(); }
    QString ErrorText() const { return m_error; } ///< why there is no folder
    QString Path(const char* name) const;

private:
    QString m_error;
    int m_lock = -1; ///< held as long as the folder is used
};

/// Puts off the signals that end the program, so that what is half written is finished or removed first.
class SignalsHeld
{
public:
    SignalsHeld();
    ~SignalsHeld();
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;

private:
    sigset_t m_before = {};
};
