#pragma once

#include "common/xmlcleaner.h"

#include <QByteArray>
#include <QString>

#include <memory>

class QIODevice;
class QTextDecoder;

/// Reads an XML document as UTF-8, without what no XML document may hold. The byte order mark and the
/// declaration tell its encoding, and must agree: UTF-8, US-ASCII, ISO-8859-1 or UTF-16.
class XmlInput
{
public:
    explicit XmlInput(QIODevice& source); ///< [ref]
    ~XmlInput();

    /// The next bytes, of at most `most` of the source; valid until the next call.
    const QByteArray& Read(qint64 most);
    bool AtEnd() const { return m_atEnd; }
    const QString& GetError() const { return m_error; } ///< empty while all is well

private:
    bool Start();
    bool Decode();
    bool Fail(const char* why);

    QIODevice& m_source;
    qint64 m_total = 0;
    bool m_started = false;
    bool m_atEnd = false;
    bool m_asciiOnly = false;
    std::unique_ptr<QTextDecoder> m_decoder; ///< null: the source is UTF-8
    QString m_half; ///< first half of a surrogate pair whose second half is not read yet
    XmlCleaner m_cleaner;
    QByteArray m_raw;
    QByteArray m_text;
    QString m_error;
};
