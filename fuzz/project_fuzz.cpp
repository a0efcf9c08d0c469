#include "project_fuzz.h"

#include "frame/lednimbradata.h"
#include "fuzzing.h"
#include "project/projectdata.h"

#include <QFile>

void LoadAndSave(const QString& folder, const QString& path)
{
    CProjectData& project = *GetProjectData();
    project.SetToDefault();
    QString version;
    if (!project.LoadProjectFromFile(QFile::encodeName(path).constData(), version, nullptr)) {
        Demand(!project.GetLastFileError().isEmpty(), "a refusal says why");
        return;
    }
    const int senders = project.GetSenderCount();
    const QString saved = folder + QStringLiteral("saved.prj");
    Demand(project.SaveProjectToFile(saved, nullptr), "what was loaded saves");
    Demand(project.LoadProjectFromFile(QFile::encodeName(saved).constData(), version, nullptr),
           "what was saved loads");
    Demand(project.GetSenderCount() == senders, "saving keeps the senders");
}
