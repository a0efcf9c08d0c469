// The list of receiver parameter files that a project carries.
#include "common/safefilename.h"
#include "products/productdirectoryset.h"
#include "project/parameterwork.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"

#include <QFile>
#include <QStringList>

namespace {

constexpr int kMaxParameterFiles = 4096; ///< of one project; the list is searched row by row

QString SafeName(const QString& name, const QStringList& taken)
{
    return UniqueName(SafeFileName(name, QStringLiteral("param")), taken);
}

} // namespace

void CProjectData::AddParameterFileInfo(const QString& name, const SMD5& type)
{
    int row = FindParameterFile(type);
    if (row < 0) {
        m_parameterFiles.append({SafeName(name, ParameterFileNames(-1)), type});
        row = m_parameterFiles.size() - 1;
    }
    const QString source = parameterwork::LibraryFile(GetProjectLookup()->Products(), type);
    if (!source.isEmpty())
        parameterwork::Store(source, m_parameterFiles[row].name, type);
}

void CProjectData::DeleteParameterFileInfo(const SMD5& type)
{
    const int row = FindParameterFile(type);
    if (row < 0)
        return;
    QFile::remove(parameterwork::PathOf(m_parameterFiles[row].name));
    m_parameterFiles.removeAt(row);
}

void CProjectData::ExchangeNameByMD5(const SMD5& type, const QString& newName)
{
    const int row = FindParameterFile(type);
    if (row < 0)
        return;
    const QString name = SafeName(newName, ParameterFileNames(row));
    const QString before = m_parameterFiles[row].name;
    if (name == before)
        return;
    m_parameterFiles[row].name = name;
    const QString target = parameterwork::PathOf(name);
    if (QFile::exists(parameterwork::PathOf(before))) {
        QFile::remove(target); // of a project no longer open: this one has no row of that name
        QFile::rename(parameterwork::PathOf(before), target);
    }
}

QList<SParameterFileInfo> CProjectData::GetParameterFiles() const
{
    return m_parameterFiles;
}

int CProjectData::FindParameterFile(const SMD5& type) const
{
    for (int i = 0; i < m_parameterFiles.size(); ++i)
        if (m_parameterFiles[i].type == type)
            return i;
    return -1;
}

QStringList CProjectData::ParameterFileNames(int except) const
{
    QStringList names;
    for (int i = 0; i < m_parameterFiles.size(); ++i)
        if (i != except)
            names.append(m_parameterFiles[i].name);
    return names;
}

QList<SParameterFileInfo> CProjectData::TakeParameterFiles(const QList<SParameterFileInfo>& files)
{
    m_parameterFiles.clear();
    QList<SParameterFileInfo> rows;
    for (const SParameterFileInfo& file : files.mid(0, kMaxParameterFiles)) {
        rows.append({QString(), file.type});
        if (!file.type.IsNull() && FindParameterFile(file.type) >= 0)
            continue;
        rows.last().name = SafeName(file.name, ParameterFileNames(-1));
        m_parameterFiles.append(rows.last());
    }
    return rows;
}
