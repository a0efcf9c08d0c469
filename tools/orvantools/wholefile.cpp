#include "orvantools/wholefile.h"

#include "orvantools/outputdevice.h"

#include <QFileInfo>
#include <QSaveFile>

namespace OrvanTools {

bool WriteWholeFile(const QString& path, const std::function<bool(QIODevice&)>& write, QString* why,
                    const std::function<bool()>& isStopped)
{
    const QFileInfo there(path);
    if (there.exists() && !there.isFile() && !there.isDir()) {
        *why = QStringLiteral("is no regular file");
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        *why = file.errorString();
        return false;
    }
    OutputDevice device(file, isStopped);
    if (!write(device) || !device.Finish()) {
        *why = device.Why();
        return false;
    }
    const bool done = file.commit();
    *why = done ? QString() : file.errorString();
    return done;
}

} // namespace OrvanTools
