#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

// What the fuzzers share. Each is one source file that defines LLVMFuzzerTestOneInput; linked with libFuzzer
// it looks for faults, linked with replay.cpp it runs the inputs of a corpus. Both prepare it with
// LLVMFuzzerInitialize, which gives the run a documents folder of its own and makes the shared objects.

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

/// An empty folder for one input, with a trailing "/". What the input before left is gone, in the documents
/// folder too.
QString FreshFolder();

/// Writes a file into the fresh folder and returns its path.
QString WriteInput(const QString& folder, const char* name, const QByteArray& content);

/// Ends the run with a message unless what must hold for every input does.
void Demand(bool holds, const char* what);
