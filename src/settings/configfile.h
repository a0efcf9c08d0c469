#pragma once

#include "settings/configitems.h"

class QString;

constexpr float kMinLayoutSize = 30;
constexpr float kMaxLayoutSize = 70;

/// Writes the settings document, replacing the file as one step.
bool WriteConfigFile(const QString& path, const SConfigItems& items);

/// Reads a settings document over `items`: what the file does not name keeps its value, what it names out of
/// bounds is put right. False, with nothing changed, when the file is no settings document.
bool ReadConfigFile(const QString& path, SConfigItems* items);

/// Takes those of the styles that have a key, names those without a name, and keeps the current index inside.
void SetStyles(const QList<SUiStyle>& styles, SConfigItems* items);
