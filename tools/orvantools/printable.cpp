#include "orvantools/printable.h"

namespace OrvanTools {

bool IsUnprintable(QChar character)
{
    const ushort code = character.unicode();
    const bool turns = code == 0x061C || code == 0x200E || code == 0x200F
                       || (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    return turns || code == QChar::LineSeparator || code == QChar::ParagraphSeparator
           || character.category() == QChar::Other_Control;
}

QString Printable(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (IsUnprintable(text.at(i)))
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

} // namespace OrvanTools
