// The list of receiver parameter files that a project carries.
#include "common/safefilename.h"
#include "products/productdirectoryset.h"
#include "project/parameterwork.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"

#include <QFile>
#include <QSet>

namespace {

QString SafeName(const QString& name, UniqueNames& names)
{
    return names.Take(SafeFileName(name, QStringLiteral("param")));
}

} // namespace

void CProjectData::AddParameterFileInfo(const QString& name, const SMD5& type)
{
    int row = FindParameterFile(type);
    if (row < 0) {
        row = m_parameterFiles.size();
        m_parameterFiles.append({SafeNameBesideRows(name, row), type});
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
    const QString name = SafeNameBesideRows(newName, row);
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

QString CProjectData::SafeNameBesideRows(const QString& name, int row) const
{
    UniqueNames names;
    for (int i = 0; i < m_parameterFiles.size(); ++i)
        if (i != row)
            names.Take(m_parameterFiles[i].name);
    return SafeName(name, names);
}

QList<SParameterFileInfo> CProjectData::TakeParameterFiles(const QList<SParameterFileInfo>& files)
{
    m_parameterFiles.clear();
    QList<SParameterFileInfo> rows;
    UniqueNames names;
    QSet<SMD5> types;
    for (const SParameterFileInfo& file : files) {
        rows.append({QString(), file.type});
        if (types.contains(file.type))
            continue;
        if (!file.type.IsNull())
            types.insert(file.type);
        rows.last().name = SafeName(file.name, names);
        m_parameterFiles.append(rows.last());
    }
    return rows;
}
