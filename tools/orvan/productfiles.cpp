#include "productfiles.h"

#include <QDirIterator>

bool ForEachProductFile(const QString& folder, const std::function<bool(const QString&)>& take)
{
    QDirIterator files(folder, {QStringLiteral("*.rcvp"), QStringLiteral("*.rcvbp")},
                       QDir::Files | QDir::Hidden | QDir::NoSymLinks | QDir::CaseSensitive,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        if (!take(files.next()))
            return false;
    }
    return true;
}
