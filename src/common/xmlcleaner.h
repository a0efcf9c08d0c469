#pragma once

#include <QByteArray>

/// Takes out of the bytes of a UTF-8 document what stands in files although no XML document may hold it: the
/// NUL that closes a digest, as a byte or as a character reference, and other control bytes.
class XmlCleaner
{
public:
    /// Appends what stays of the next bytes. What may be the beginning of a reference waits for those behind
    /// it.
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

    bool TakeAsReference(char c); ///< false when what came before is none with this behind it
    void GiveBack(QByteArray& clean);

    Part m_part = Part::None; ///< how much of a reference to NUL came last
    bool m_hexadecimal = false;
    int m_zeros = 0;
};
