#pragma once

#include <QString>

#include <csignal>

/// A private folder in the temporary folder of the platform. It is gone with the object, also when a signal
/// or a closed pipe ends the program. When one is made, folders of killed runs are removed. One at a time.
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

/// Delays the signals that end the program, so that half-written files are finished or removed first.
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

bool IsSignalWaiting(); ///< whether one of them came and is delayed
