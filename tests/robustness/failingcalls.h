#pragma once

/// Makes the first to the last call from now on, of those that change a file (open to write, write, flush,
/// rename, link, make a folder), fail as on a full or broken disk; they are counted from 1. The library and
/// all below it call through this program, which stands in front of the C library.
void FailCalls(int first, int last);

int CountCalls(); ///< made since
