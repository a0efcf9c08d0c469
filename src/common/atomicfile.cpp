#include "common/atomicfile.h"

#include <QSaveFile>

bool ReplaceFile(const QString& path, const std::function<bool(QIODevice&)>& write, QString* error)
{
    QSaveFile file(path);
    const bool done = file.open(QIODevice::WriteOnly) && write(file) && file.commit();
    if (!done && error)
        *error = file.error() == QFileDevice::NoError ? QStringLiteral("could not be written")
                                                      : file.errorString();
    return done;
}

bool ReplaceFile(const QString& path, const QByteArray& content, QString* error)
{
    return ReplaceFile(
        path, [&content](QIODevice& file) { return file.write(content) == content.size(); }, error);
}
