#pragma once

#include "support/text.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QTemporaryDir>

/// An empty folder that is gone with the object. Its name holds a blank and a Chinese character.
class TestFolder
{
public:
    TestFolder();

    QString Path(const QString& name = QString()) const; ///< without a name: the folder, no trailing "/"

    /// Writes a file below the folder, making its folders, and returns its path.
    QString Write(const QString& name, const QByteArray& content) const;

private:
    QTemporaryDir m_folder;
};

QString WriteFile(const QString& path, const QByteArray& content); ///< makes its folders; returns the path
bool SetFileTime(const QString& path, const QDateTime& modified);
QByteArray ReadFile(const QString& path); ///< empty when the file cannot be read
QString SamplePath(const char* name);
