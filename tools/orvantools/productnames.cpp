#include "orvantools/productnames.h"

namespace OrvanTools {

QHash<SMD5, QString> ProductNames(const CProjectData& project)
{
    QHash<SMD5, QString> names;
    for (const SParameterFileInfo& file : project.GetParameterFiles()) {
        if (!file.type.IsNull() && !names.contains(file.type))
            names.insert(file.type, file.name);
    }
    return names;
}

} // namespace OrvanTools
