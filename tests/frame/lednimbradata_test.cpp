#include "frame/runtimedata.h"
#include "monitor/monitordata.h"
#include "project/projectdata.h"
#include "settings/configdata.h"
#include "settings/constantdata.h"
#include "support/library.h"
#include "support/text.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QStandardPaths>

#include <array>

namespace {

std::array<void*, 6> Objects()
{
    return {GetProjectData(),  GetProjectManagement(), GetConfigData(),
            GetConstantData(), GetRuntimeData(),       GetMonitorData()};
}

} // namespace

TEST(LedNimbraDataTest, ObjectsLiveBetweenInitAndRelease)
{
    const std::array<void*, 6> none{};
    EXPECT_EQ(Objects(), none);
    LedNimbraData_Release();
    {
        Library library;
        const auto objects = Objects();
        EXPECT_EQ(std::count(objects.begin(), objects.end(), nullptr), 0);
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        EXPECT_TRUE(QDir(documents + "/Orvan/SysConfig"_s).exists());
    }
    EXPECT_EQ(Objects(), none);
    LedNimbraData_Release();
}

TEST(LedNimbraDataTest, EachInitLoadsTheSettingsAndTheSecondKeepsTheObjects)
{
    Library library;
    const auto objects = Objects();
    GetConfigData()->SetLanguage(LanguageEnglish);
    ASSERT_TRUE(GetConfigData()->Save());
    GetConfigData()->SetShowGrid(false);
    LedNimbraData_Init();
    EXPECT_EQ(Objects(), objects);
    EXPECT_TRUE(GetConfigData()->IsShowGrid()) << "what was not saved is loaded over";
    LedNimbraData_Release();
    LedNimbraData_Init();
    EXPECT_EQ(GetConfigData()->GetLanguageType(), LanguageEnglish);
}
