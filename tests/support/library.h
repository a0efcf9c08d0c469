#pragma once

#include "frame/lednimbradata.h"

/// The six shared objects over a documents folder that was emptied, for the length of a test.
class Library
{
public:
    Library();
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
};
