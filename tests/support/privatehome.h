#pragma once

#include <QTemporaryDir>

/// A home folder for a program that must not touch the user's: what the library keeps there and in temporary
/// folders is gone with the object. Made before the application object. Its name holds a blank and a Chinese
/// character. Windows show nowhere.
class PrivateHome
{
public:
    PrivateHome();
    QString Path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};
