#pragma once

class QString;

/// Brings a key text into the form in which files hold it; false for a text that names no key.
bool NormalizeHotkey(QString* hotkey);
