#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <csignal>

// Every path that the library derives from the user's folders leads into a folder of the test run's own.
int main(int argc, char** argv)
{
    // A shell that runs the tests in the background, or under nohup, hands down signals that are ignored.
    for (const int signal : {SIGINT, SIGHUP})
        std::signal(signal, SIG_DFL);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir home(QDir::tempPath() + QStringLiteral("/orvan-home 屏XXXXXX"));
    const QByteArray path = home.path().toUtf8();
    qputenv("HOME", path);
    qputenv("XDG_CONFIG_HOME", path + "/config");
    qputenv("XDG_DATA_HOME", path + "/data");
    qputenv("XDG_CACHE_HOME", path + "/cache");
    qputenv("TMPDIR", path + "/tmp");
    QDir().mkpath(home.path() + QStringLiteral("/tmp"));
    QDir().mkpath(home.path() + QStringLiteral("/Documents"));

    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
