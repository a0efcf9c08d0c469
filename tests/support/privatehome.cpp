#include "support/privatehome.h"

#include <QDir>

PrivateHome::PrivateHome() : m_folder(QDir::tempPath() + QStringLiteral("/orvan-home 屏XXXXXX"))
{
    const QByteArray path = Path().toUtf8();
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", path);
    qputenv("XDG_RUNTIME_DIR", path);
    qputenv("XDG_CONFIG_HOME", path + "/config");
    qputenv("XDG_DATA_HOME", path + "/data");
    qputenv("XDG_CACHE_HOME", path + "/cache");
    qputenv("TMPDIR", path + "/tmp");
    for (const char* folder : {"/tmp", "/Documents"})
        QDir().mkpath(Path() + QLatin1String(folder));
}
