#include "common/safefilename.h"
#include "support/text.h"

#include <gtest/gtest.h>

TEST(SafeFileNameTest, LongNameIsCutBetweenCharacters)
{
    const QString face = "\U0001F600"_s;
    const QString letters(119, QLatin1Char('a'));
    EXPECT_EQ(SafeFileName(letters + face, QString()), letters);
    EXPECT_EQ(SafeFileName(QLatin1Char('.') + letters + face, QString()), letters);
    EXPECT_EQ(SafeFileName(face.repeated(40), QString()), face.repeated(30));
    EXPECT_EQ(SafeFileName("a"_s.repeated(130), QString()), "a"_s.repeated(kMaxFileNameBytes));
}

TEST(SafeFileNameTest, NothingLeadsOutOfTheFolderOrBreaksALine)
{
    EXPECT_EQ(SafeFileName("../a\\b:\u0085c\n. ."_s, QString()), "_a_b__c_"_s);
    EXPECT_EQ(SafeFileName(".. "_s, "param"_s), "param"_s);
}
