// Runs a fuzzer over the files of the folders given, without libFuzzer: what once failed must not fail again.
#include "fuzzing.h"

#include <QDirIterator>
#include <QFile>

#include <cstdio>
#include <vector>

int main(int argc, char** argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator files(QFile::decodeName(argv[i]), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                return 1;
            const QByteArray content = file.readAll();
            // A copy of exactly this size, so that reading past its end is seen.
            const std::vector<uint8_t> input(content.begin(), content.end());
            LLVMFuzzerTestOneInput(input.data(), input.size());
            ++count;
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
