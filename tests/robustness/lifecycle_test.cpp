#include "frame/lednimbradata.h"

#include <gtest/gtest.h>

#include <QDir>

// What the rounds leave in memory is the address sanitizer's to tell.
TEST(LifecycleTest, ThousandStartsAndReleasesLeaveNothingOpen)
{
    const QDir open(QStringLiteral("/proc/self/fd"));
    LedNimbraData_Init();
    LedNimbraData_Release();
    const int before = open.entryList(QDir::System | QDir::AllEntries).size();
    for (int round = 0; round < 1000; ++round) {
        LedNimbraData_Init();
        LedNimbraData_Release();
    }
    EXPECT_EQ(open.entryList(QDir::System | QDir::AllEntries).size(), before);
}
