// A project archive, and the same bytes as an archive of any kind.
#include "fuzzing.h"
#include "project_fuzz.h"
#include "settings/archive.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString folder = FreshFolder();
    const QString path = WriteInput(folder, "input.prj", content);
    if (UnpackArchive(path, folder + QStringLiteral("unpacked")))
        Demand(PackFolder(folder + QStringLiteral("unpacked"), folder + QStringLiteral("again.zip")),
               "what was unpacked packs");
    LoadAndSave(folder, path);
    return 0;
}
