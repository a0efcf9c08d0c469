#include "support/privatehome.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <csignal>

// Every path that the library derives from the user's folders leads into a folder of the test run's own.
int main(int argc, char** argv)
{
    // A shell that runs the tests in the background, or under nohup, hands down signals that are ignored.
    for (const int signal : {SIGINT, SIGHUP})
        std::signal(signal, SIG_DFL);
    const PrivateHome home;
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
