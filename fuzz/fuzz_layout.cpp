// The layout of one sender or one port, read as both. What was read must write, and read again.
#include "frame/lednimbradata.h"
#include "fuzzing.h"
#include "layout/sender.h"
#include "project/projectdata.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString folder = FreshFolder();
    const QString path = WriteInput(folder, "input.xml", content);
    const QString exported = folder + QStringLiteral("exported.xml");
    CProjectData& project = *GetProjectData();
    project.SetToDefault();
    const QUuid id = project.NewSender()->GetId();
    if (project.ImportPort(path)) {
        Demand(project.ExportPort(exported), "a port that was read writes");
        Demand(project.ImportPort(exported), "a port that was written reads");
    }
    const bool attributes = size % 2 == 0;
    if (project.ImportSender(path, id, false, attributes)) {
        Demand(project.GetSender(0)->GetId() == id, "an import keeps the sender's identity");
        Demand(project.ExportSender(exported, id), "a sender that was read writes");
        Demand(project.ImportSender(exported, id, false, attributes), "a sender that was written reads");
    }
    return 0;
}
