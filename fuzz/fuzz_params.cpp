// Parameter files of both families, by position and by address, for the senders of a project and for one.
#include "frame/lednimbradata.h"
#include "frame/runtimedata.h"
#include "fuzzing.h"
#include "layout/sender.h"
#include "project/projectdata.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString folder = FreshFolder();
    const QString path = WriteInput(folder, "input.xml", content);
    CProjectData& project = *GetProjectData();
    project.SetToDefault();
    for (unsigned int i = 0; i < 2; ++i)
        project.NewSender()->SetNetSenderIP(0xC0A8010Au + i);
    const QUuid first = project.GetSender(0)->GetId();

    SImpExpPrepareInfo& prepared = *GetRuntimeData()->GetImpExpPrepareInfo();
    prepared.senders = {0, 1};
    for (const bool byIp : {false, true}) {
        prepared.matchByIp = byIp;
        project.ImportMutiProcessorParam(path, QUuid());
        project.ImportMutiSenderParam(path, QUuid());
    }
    project.ImportProcessorParam(path, first);
    project.ImportSenderParam(path, first);

    prepared.matchByIp = false;
    const QString exported = folder + QStringLiteral("exported.xml");
    Demand(project.ExportMutiProcessorParam(exported, QUuid()) == 0, "processor parameters write");
    Demand(project.ImportMutiProcessorParam(exported, QUuid()) == 0, "processor parameters read again");
    Demand(project.ExportMutiSenderParam(exported, QUuid()) == 0, "sender parameters write");
    Demand(project.ImportMutiSenderParam(exported, QUuid()) == 0, "sender parameters read again");
    return 0;
}
