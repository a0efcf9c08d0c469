#pragma once

#include <QtGlobal>

/// What the functions on parameter files and blocks return. GetLastFileError() of the project says more.
namespace params {

constexpr quint32 kDone = 0;
constexpr quint32 kNothingGiven = 1; ///< of LoadInputParam, without a sender or an element
constexpr quint32 kFailed =
    0x80004005; ///< the file, a sender or an element is missing, or what no other code says
constexpr quint32 kTypeDiffers = 0xE0830003;  ///< the file is of another processor type than the sender
constexpr quint32 kImportFailed = 0xE0830013; ///< the file does not hold what the sender takes

} // namespace params
