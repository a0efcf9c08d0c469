#include "project/projectmanagement.h"

#include "common/safefilename.h"
#include "common/texts.h"
#include "project/projectdata.h"

#include <QFileDialog>
#include <QProgressDialog>

CProjectManagement::~CProjectManagement()
{
    ClearProject();
}

void CProjectManagement::AddProject(const CProjectData* project)
{
    if (!project)
        return;
    CProjectData* held = GetProjectData(project->GetID());
    if (!held) {
        held = new CProjectData;
        m_projects.append(held);
    }
    held->CopyProject(*project);
}

CProjectData* CProjectManagement::GetProjectData(const QUuid& id) const
{
    for (CProjectData* project : m_projects)
        if (project->GetID() == id)
            return project;
    return nullptr;
}

void CProjectManagement::DeleteProject(const QUuid& id)
{
    CProjectData* project = GetProjectData(id);
    m_projects.removeOne(project);
    delete project;
}

void CProjectManagement::ClearProject()
{
    while (!m_projects.isEmpty())
        delete m_projects.takeLast();
}

bool CProjectManagement::SaveMutiProject(QProgressDialog* dialog)
{
    QString folder =
        QFileDialog::getExistingDirectory(nullptr, Texts::tr("选取"), QString(), QFileDialog::ShowDirsOnly);
    if (folder.isEmpty())
        return false;
    if (!folder.endsWith(QLatin1Char('/')))
        folder += QLatin1Char('/');

    // The dialog runs an event loop in which the list may change, and no project may be saved over another.
    const QList<CProjectData*> projects = m_projects;
    QStringList names;
    for (int i = 0; i < projects.size(); ++i) {
        CProjectData* project = projects[i];
        if (!m_projects.contains(project) || project->GetDeviceSetName().isEmpty())
            continue;
        QString name = SafeFileName(project->GetDeviceSetName(), QStringLiteral("param"));
        const QString wanted = name;
        for (int number = 2; names.contains(name, Qt::CaseInsensitive); ++number)
            name = wanted + QStringLiteral(" (%1)").arg(number);
        names.append(name);
        project->SaveProjectToFile(folder + name + QStringLiteral(".prj"), nullptr);
        if (dialog)
            dialog->setValue(100 / projects.size() * i);
    }
    return true;
}
