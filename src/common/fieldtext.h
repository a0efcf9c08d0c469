#pragma once

#include "common/smd5.h"

#include <QString>
#include <QUuid>

#include <string>
#include <string_view>

/// Text forms of values in files: UTF-8, whatever the locale. Reading follows QString::toInt and its kin:
/// blanks around a number are passed over, and a text that is no number reads as 0.
namespace fieldtext {

void Append(std::string& out, int value);
void Append(std::string& out, unsigned int value);
void Append(std::string& out, unsigned char value);
void Append(std::string& out, bool value);   ///< "1" or "0"
void Append(std::string& out, double value); ///< as QString::number(value, 'g', 6) gives it
void Append(std::string& out, float value);
void Append(std::string& out, const QUuid& value); ///< braced, lower case
void Append(std::string& out, const SMD5& value);  ///< 32 digits and the closing NUL; empty for no type
/// Leaves out what an XML file cannot hold: controls other than tab and line ends, U+FFFE, U+FFFF, lone
/// surrogates.
void Append(std::string& out, const QString& value);

void Read(std::string_view text, int& value);
void Read(std::string_view text, unsigned int& value);
void Read(std::string_view text, unsigned char& value); ///< the number modulo 256
void Read(std::string_view text, bool& value);          ///< true for any number but 0
void Read(std::string_view text, double& value);        ///< unchanged for a number that is not finite
void Read(std::string_view text, float& value);
void Read(std::string_view text, QUuid& value);
void Read(std::string_view text, SMD5& value); ///< unchanged unless the text has 32 or 33 ASCII characters
void Read(std::string_view text, QString& value);

} // namespace fieldtext
