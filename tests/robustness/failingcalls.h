#pragma once

/// Makes the n-th call from now on of those that change a file (open to write, write, flush, rename, link,
/// make a folder) fail as on a full or broken disk; 0: none. The library and all below it call through
/// this program, which stands in front of the C library.
void FailCall(int n);

int CountCalls(); ///< made since
