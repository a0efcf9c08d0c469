#include "layout/layoutlookup.h"
#include "monitor/monitorlookup.h"
#include "orvandata.h"
#include "project/projectlookup.h"
#include "settings/settingslookup.h"
#include "support/library.h"
#include "support/testfolder.h"
#include "support/text.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

#include <QDebug>
#include <QDir>
#include <QStandardPaths>
#include <QVariant>

#include <array>

namespace {

std::array<void*, 6> Objects()
{
    return {GetProjectData(),  GetProjectManagement(), GetConfigData(),
            GetConstantData(), GetRuntimeData(),       GetMonitorData()};
}

} // namespace

/// Those who answer for other rooms.
std::array<void*, 4> Answering()
{
    return {GetSettingsLookup(), GetLayoutLookup(), GetMonitorLookup(), GetProjectLookup()};
}

TEST(LedNimbraDataTest, ObjectsLiveBetweenInitAndRelease)
{
    const std::array<void*, 6> none{};
    EXPECT_EQ(Objects(), none);
    const auto answering = Answering();
    LedNimbraData_Release();
    {
        Library library;
        const auto objects = Objects();
        EXPECT_EQ(std::count(objects.begin(), objects.end(), nullptr), 0);
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        EXPECT_TRUE(QDir(documents + "/Orvan/SysConfig"_s).exists());
        EXPECT_EQ(LedNimbraData_FolderProblem(), QString());
        EXPECT_TRUE(GetConfigData()->GetLanguageFilePath().contains("/Language/"_s));
    }
    EXPECT_EQ(Objects(), none);
    EXPECT_EQ(Answering(), answering) << "nobody asks what is gone";
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

TEST(LedNimbraDataTest, TheObjectsAnswerEachOther)
{
    const Library library;
    CProductDirectorySet& products = *GetRuntimeData()->GetProductDirectorySet();
    const QString file = WriteFile(CProductDirectorySet::GetRootDir() + "cabinet.rcvbp"_s, "a");
    ASSERT_EQ(products.LoadProductInfo(), 1);
    const SMD5 type = CConstantData::GetMD5FromFile(file);
    CProduct* product = products.FindProductFromFileName("cabinet.rcvbp"_s);
    CSender* sender = GetProjectData()->NewSender();
    CTile tile;
    for (const bool multi : {false, true}) {
        product->SetMulti(multi);
        product->SetMultiFlagSet(!multi);
        tile.SetType(type);
        EXPECT_TRUE(tile.IsMultiRcvTile() == multi && tile.IsMultiRcvsOrdered() != multi);
    }
    tile.SetType(SMD5());
    EXPECT_FALSE(tile.IsMultiRcvTile());
    SAddTileInfo info;
    info.columns = info.rows = 1;
    info.type = type;
    EXPECT_TRUE(sender->GetPort(0)->GetPortProject()->AddTile(info));
    EXPECT_EQ(GetProjectData()->GetParameterFiles().size(), 1);
    sender->GetPort(1)->SetBeBackupDest(sender->GetId(), 0);
    EXPECT_EQ(sender->GetPort(1)->GetPortTileSetOrBackupSrc(), &TilesOf(*sender->GetPort(0)));

    CConfigData& config = *GetConfigData();
    config.SetReadOnlyState(InterfaceDesign, true);
    GetMonitorData()->StoreInterfaceLockInfo();
    config.SetReadOnlyState(InterfaceDesign, false);
    GetMonitorData()->RecoverInterfaceLockInfo();
    EXPECT_TRUE(config.GetReadOnlyState(InterfaceDesign));
    config.SetReadOnlyState(InterfaceDesign, false);
    GetMonitorData()->SetMonitoring(true);
    ASSERT_TRUE(config.Save());
    LedNimbraData_Init();
    EXPECT_TRUE(config.GetReadOnlyState(InterfaceDesign)) << "monitoring had stored it";
}

TEST(LedNimbraDataTest, ValuesAreShownAndCarriedAndSetsWalked)
{
    const Library library;
    const auto sender = MakeWall(2, 1);
    const CPort& port = *std::as_const(*sender).GetPort(0);
    QString shown;
    QDebug(&shown) << SMD5() << CPointEx<int>() << CPointEx<double>() << SRotateParam() << SGuidCompare()
                   << SAddTileInfo() << SPortPlace() << SMonitorPlace() << SLoopbackError() << SVideoInput()
                   << SSenderGroupInfo() << SRcvParamGamma() << SParameterFileInfo() << SHotkey()
                   << CProduct() << *port.GetTileGroupSet().GetDirectGroupByDirIndex(0) << port.GetTileSet()
                   << port << *sender;
    EXPECT_TRUE(shown.contains(QStringLiteral("CPort(0, 2 cabinets, 1 groups) CSender(")))
        << shown.toStdString();
    int width = 0;
    for (const CTile* tile : port.GetTileSet())
        width += tile->GetMultiRcvRect(0).width() + tile->GetMultiRcvRelativeRect(0).x()
                 + tile->GetMultiRcvsLine()[0] + qRound(tile->GetTileRotateParam()->angle);
    EXPECT_EQ(width, 256);
    EXPECT_TRUE(port.GetPortProject()->SelTileShapeModifyEnable());
    const CProjectUndoRedo& history = *GetRuntimeData()->GetProjectUndoRedo();
    EXPECT_EQ(history.GetCanUndoStep() + history.GetUndoStepPort(0), -1);
    EXPECT_EQ(QVariant::fromValue(SPortPlace{1, 2}).value<SPortPlace>(), (SPortPlace{1, 2}));
}

TEST(LedNimbraDataTest, FoldersThatCannotBeMadeOrWrittenInAreTold)
{
    QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString root = documents.filePath(QStringLiteral("Orvan"));
    QDir(root).removeRecursively();
    WriteFile(root, "");
    LedNimbraData_Init();
    EXPECT_TRUE(LedNimbraData_FolderProblem().contains(root + QStringLiteral("/SysConfig")));
    LedNimbraData_Release();
    EXPECT_TRUE(documents.remove(root) && documents.mkpath(root));
    ASSERT_TRUE(QFile::link("/proc/self"_s, root + "/SysConfig"_s)); // where nobody writes
    LedNimbraData_Init();
    EXPECT_TRUE(LedNimbraData_FolderProblem().contains(root + QStringLiteral("/SysConfig")));
    LedNimbraData_Release();
    EXPECT_TRUE(QDir(root).removeRecursively());
}
