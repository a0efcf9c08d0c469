#include "common/safefilename.h"

#include <gtest/gtest.h>

TEST(SafeFileNameTest, LongNameIsCutBetweenCharacters)
{
    const QString face = QString::fromUtf8("\U0001F600");
    const QString letters(119, QLatin1Char('a'));
    EXPECT_EQ(SafeFileName(letters + face, QString()), letters);
    EXPECT_EQ(SafeFileName(QLatin1Char('.') + letters + face, QString()), letters);
    EXPECT_EQ(SafeFileName(face.repeated(40), QString()), face.repeated(30));
}

TEST(SafeFileNameTest, NothingLeadsOutOfTheFolderOrBreaksALine)
{
    EXPECT_EQ(SafeFileName(QStringLiteral("../a\\b:\u0085c\n. ."), QString()), QStringLiteral("_a_b__c_"));
    EXPECT_EQ(SafeFileName(QStringLiteral(".. "), QStringLiteral("param")), QStringLiteral("param"));
}
