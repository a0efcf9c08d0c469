#pragma once

#include "settings/configitems.h"

class QString;

void SetConfigDefaults(SConfigItems* items);

/// Writes the settings document, replacing the file as one step.
bool WriteConfigFile(const QString& path, const SConfigItems& items);

/// Reads a settings document over `items`: what the file does not name keeps its value, what it names out of
/// bounds is put right. False, with nothing changed, when the file is no settings document.
bool ReadConfigFile(const QString& path, SConfigItems* items);

/// Puts right what items say together: styles without a key, an index outside the list, gaps in the records.
void RepairConfig(SConfigItems* items);
