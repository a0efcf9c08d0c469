// The document of a project, without an archive around it.
#include "fuzzing.h"
#include "project_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString folder = FreshFolder();
    LoadAndSave(folder, WriteInput(folder, "input.xml", content));
    return 0;
}
