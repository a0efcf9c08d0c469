// The list of receiver parameter files that a project carries.
#include "common/safefilename.h"
#include "products/productdirectoryset.h"
#include "project/parameterwork.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"

#include <QFile>

namespace {

int RowOf(const SMD5& type, const QList<SParameterFileInfo>& files)
{
    for (int i = 0; i < files.size(); ++i)
        if (files[i].type == type)
            return i;
    return -1;
}

/// Unlike the names of all rows but `row`.
QString SafeNameBesideRows(const QString& name, const QList<SParameterFileInfo>& files, int row)
{
    UniqueNames names;
    for (int i = 0; i < files.size(); ++i)
        if (i != row)
            names.Take(files[i].name);
    return parameterwork::SafeName(name, names);
}

} // namespace

void CProjectData::AddParameterFileInfo(const QString& name, const SMD5& type)
{
    int row = RowOf(type, m_state.parameterFiles);
    if (row < 0) {
        row = m_state.parameterFiles.size();
        m_state.parameterFiles.append({SafeNameBesideRows(name, m_state.parameterFiles, row), type});
    }
    const QString source = parameterwork::LibraryFile(GetProjectLookup()->Products(), type);
    if (!source.isEmpty())
        parameterwork::Store(source, m_state.parameterFiles[row].name, type);
}

void CProjectData::DeleteParameterFileInfo(const SMD5& type)
{
    const int row = RowOf(type, m_state.parameterFiles);
    if (row < 0)
        return;
    QFile::remove(parameterwork::PathOf(m_state.parameterFiles[row].name));
    m_state.parameterFiles.removeAt(row);
}

void CProjectData::ExchangeNameByMD5(const SMD5& type, const QString& newName)
{
    const int row = RowOf(type, m_state.parameterFiles);
    if (row < 0)
        return;
    const QString name = SafeNameBesideRows(newName, m_state.parameterFiles, row);
    const QString before = m_state.parameterFiles[row].name;
    if (name == before)
        return;
    m_state.parameterFiles[row].name = name;
    const QString target = parameterwork::PathOf(name);
    if (QFile::exists(parameterwork::PathOf(before))) {
        QFile::remove(target); // of a project no longer open: this one has no row of that name
        QFile::rename(parameterwork::PathOf(before), target);
    }
}
