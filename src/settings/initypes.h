#pragma once

class QByteArray;

/// Whether the text of an INI file may hold a value that QSettings rebuilds as something else than a plain
/// value, geometry, a URL, a colour, a key sequence, a date or a time. Rather says so too often: it looks at
/// what follows each "@" that could begin a value, also inside of quotes. `utf8`: whether QSettings has that
/// as its codec.
bool MayHoldHarmfulTypes(const QByteArray& ini, bool utf8);
