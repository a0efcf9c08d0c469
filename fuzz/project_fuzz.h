#pragma once

#include <QString>

/// Loads a project file of whatever content. One that loads must save, and load again with as many senders.
void LoadAndSave(const QString& folder, const QString& path);
