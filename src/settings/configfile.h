#pragma once

#include "settings/configitems.h"

class QString;

constexpr float kMinLayoutSize = 30;
constexpr float kMaxLayoutSize = 70;

/// Writes the settings document, replacing the file as one step.
bool WriteConfigFile(const QString& path, const SConfigItems& items);

/// Reads a settings document into `items`. What the file does not name keeps its value. What it names out of
/// bounds is put right. False, with nothing changed, when the file is no settings document.
bool ReadConfigFile(const QString& path, SConfigItems* items);

/// Takes the styles that have a key, gives a name to those without one, and keeps the current index inside
/// the list.
void SetStyles(const QList<SUiStyle>& styles, SConfigItems* items);
