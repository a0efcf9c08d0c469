#include "common/atomicfile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

bool ReplaceFile(const QString& path, const std::function<bool(QIODevice&)>& write, QString* error)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile()) { // a device or a folder is not ours to replace
        if (error)
            *error = QCoreApplication::translate("OrvanData", "目标不是普通文件。");
        return false;
    }
    QSaveFile file(path);
    const bool done = file.open(QIODevice::WriteOnly) && write(file) && file.commit();
    if (!done && error)
        *error = file.error() == QFileDevice::NoError
                     ? QCoreApplication::translate("OrvanData", "文件无法写入。")
                     : file.errorString();
    return done;
}

bool ReplaceFile(const QString& path, const QByteArray& content, QString* error)
{
    return ReplaceFile(
        path, [&content](QIODevice& file) { return file.write(content) == content.size(); }, error);
}
