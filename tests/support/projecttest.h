#pragma once

#include "project/projectdata.h"
#include "support/library.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

/// The library at work with its open document, and a folder for files.
struct ProjectTest : testing::Test
{
    bool Load(const QString& path);
    bool LoadText(const QByteArray& elements); ///< those of the root
    bool Save(const QString& path) { return project.SaveProjectToFile(path, nullptr); }
    QByteArray Document(); ///< as it is written: equal texts are equal projects
    QString Error() const { return project.GetLastFileError(); }

    Library library;
    TestFolder folder;
    CProjectData& project = *GetProjectData();
    QString version; ///< that the last file was refused for, or "untouched"
};
