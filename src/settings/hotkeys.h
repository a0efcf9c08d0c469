#pragma once

#include "settings/configitems.h"

SHotkey GetDefaultHotkey(int mode, int index); ///< both from 0 and in range

/// Brings a key text into the form in which files hold it; false for a text that names no key.
bool NormalizeHotkey(QString* hotkey);
