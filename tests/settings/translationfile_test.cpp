#include "settings/translationfile.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>

TEST(TranslationFileTest, DescribedOneComesBeforeTheOneBesideTheLibrary)
{
    const TestFolder folder;
    const QString name = QStringLiteral("orvandata_test.qm"); // of no language that is built
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/Language/") + name;
    QFile::remove(beside);
    EXPECT_EQ(FindTranslation(folder.Path(name)), QString());
    WriteFile(beside, QByteArray());
    EXPECT_EQ(FindTranslation(folder.Path(name)), beside);
    const QString described = folder.Write(name, QByteArray());
    EXPECT_EQ(FindTranslation(described), described);
    QFile::remove(beside);
}
