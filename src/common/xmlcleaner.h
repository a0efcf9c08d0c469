#pragma once

#include <QByteArray>

/// Removes from the bytes of a UTF-8 document what no XML document may hold but files do: the NUL that closes
/// a digest, as a byte or as a character reference, and other control bytes.
class XmlCleaner
{
public:
    /// Appends what stays of the next bytes. What may begin a reference is held back until its end comes.
    void Take(const char* bytes, qint64 count, QByteArray& clean);
    void Finish(QByteArray& clean); ///< no more bytes come

private:
    enum class Part
    {
        None,
        Ampersand,
        Hash,
        Digits
    };

    bool TakeAsReference(char c); ///< false when it does not continue a reference to NUL
    void GiveBack(QByteArray& clean);

    Part m_part = Part::None; ///< how much of a reference to NUL is held back
    bool m_hexadecimal = false;
    int m_zeros = 0;
};
