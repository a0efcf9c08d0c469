#pragma once

#include <QString>

/// Results of the functions on parameter blocks and files.
namespace params {

constexpr quint32 kDone = 0;
constexpr quint32 kFailed = 0x80004005;
constexpr quint32 kTypeDiffers = 0xE0830003;  ///< the file is of another processor type than the sender
constexpr quint32 kImportFailed = 0xE0830013; ///< the file does not hold what the sender takes

/// Why an import ended, for the user; empty for results that the user need not be told.
QString ImportResultText(quint32 result);

} // namespace params
