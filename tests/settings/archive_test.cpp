#include "settings/archive.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <zip.h>

namespace {

struct Raw
{
    QByteArray name;
    QByteArray content;
    zip_uint32_t mode = S_IFREG | 0644;
    const char* password = nullptr;
};

/// Overwrites the 4 bytes at an offset behind every local or central header that begins so.
void Patch(const QString& path, const QByteArray& signature, int offset, const QByteArray& bytes)
{
    QByteArray content = ReadFile(path);
    const int at = content.indexOf(signature);
    ASSERT_GE(at, 0);
    WriteFile(path, content.replace(at + offset, bytes.size(), bytes));
}

struct ArchiveTest : testing::Test
{
    /// An archive as somebody else's program would write it, hostile ones included.
    QString MakeArchive(const QList<Raw>& entries) const
    {
        const QString path = folder.Path("made.zip"_s);
        zip_t* archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
        for (const Raw& entry : entries) {
            zip_source_t* source =
                zip_source_buffer(archive, entry.content.constData(), entry.content.size(), 0);
            const auto index = zip_file_add(archive, entry.name.constData(), source, 0);
            zip_file_set_external_attributes(archive, index, 0, ZIP_OPSYS_UNIX, entry.mode << 16);
            if (entry.password)
                zip_file_set_encryption(archive, index, ZIP_EM_AES_256, entry.password);
        }
        zip_close(archive);
        return path;
    }

    bool Unpack(const QString& path)
    {
        error.clear();
        const bool done = UnpackArchive(path, folder.Path("in/out"_s), {}, &error);
        EXPECT_EQ(error.isEmpty(), done) << error.toStdString();
        return done;
    }

    TestFolder folder;
    QString error;
};

} // namespace

TEST_F(ArchiveTest, FolderComesBackWithEveryNameAndTheSameBytesEachTime)
{
    // Plain, Chinese, outside GBK, outside the basic plane, and GBK bytes that happen to be valid UTF-8.
    const QStringList names = {"x.txt"_s, "箱体 1.rcvbp"_s, "ģ ñ.txt"_s,
                               "😀.txt"_s, "子/模.txt"_s,    ".x.txt.part"_s};
    for (const QString& name : names)
        folder.Write("屏幕B/"_s + name, name.toUtf8().repeated(100));
    folder.Write("屏幕B/empty"_s, QByteArray());
    QDir().mkpath(folder.Path("屏幕B/void"_s));
    QFile::link(folder.Path("屏幕B/x.txt"_s), folder.Path("屏幕B/link"_s));

    // The archive lies in the folder that it packs and must not pack itself.
    const QString path = folder.Path("屏幕B/a.zip"_s);
    ASSERT_TRUE(PackFolder(folder.Path("屏幕B/"_s), path, &error)) << qPrintable(error);
    const QByteArray first = ReadFile(path);
    folder.Write("屏幕B/x.txt"_s, ReadFile(folder.Path("屏幕B/x.txt"_s)));
    QFile::setPermissions(folder.Path("屏幕B/x.txt"_s), QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(PackFolder(folder.Path("屏幕B"_s), path, &error)) << qPrintable(error);
    EXPECT_EQ(ReadFile(path), first);
    EXPECT_TRUE(first.contains("/\xD7\xD3/\xC4\xA3.txt")) << "GBK where that holds the name";
    EXPECT_TRUE(first.contains("/\xF0\x9F\x98\x80.txt"));
    int marked = 0; // in the list at the end: the flags of an entry stand 8 bytes behind its begin
    int files = 0;
    for (int at = first.indexOf("PK\1\2"); at >= 0; at = first.indexOf("PK\1\2", at + 1)) {
        marked += (first.at(at + 9) & 8) != 0;
        EXPECT_EQ(first.mid(at + 12, 4), QByteArray("\0\0\x21\0", 4)) << "midnight of the first day there is";
        const QByteArray mode = first.mid(at + 38, 4);
        files += mode == QByteArray("\0\0\xA4\x81", 4);
        EXPECT_TRUE(mode.endsWith("\xA4\x81") || mode.endsWith("\xED\x41")) << mode.toHex().constData();
    }
    EXPECT_EQ(marked, 2) << "names in UTF-8 say so";
    EXPECT_EQ(files, 7);

    const QString out = folder.Path("out"_s);
    ASSERT_TRUE(UnpackArchive(path, out, {}, &error)) << qPrintable(error);
    EXPECT_EQ(error, QString());
    for (const QString& name : names)
        EXPECT_EQ(ReadFile(out + "/屏幕B/"_s + name), name.toUtf8().repeated(100)) << qPrintable(name);
    EXPECT_TRUE(QFileInfo(out + "/屏幕B/empty"_s).isFile());
    EXPECT_TRUE(QFileInfo(out + "/屏幕B/void"_s).isDir());
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    EXPECT_EQ(QDir(out + "/屏幕B"_s).entryList(all).size(), 8);
}

TEST_F(ArchiveTest, FailedPackingKeepsTheOldArchiveAndAnEmptyFolderIsOne)
{
    const QString path = folder.Write("a.zip"_s, "old");
    EXPECT_FALSE(PackFolder(folder.Path("missing"_s), path, &error));
    QFile large(folder.Write("B/large"_s, "1"));
    ASSERT_TRUE(large.resize(kMaxArchiveEntrySize + 1)); // sparse
    EXPECT_FALSE(PackFolder(folder.Path("B"_s), path, &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(ReadFile(path), "old");
    ASSERT_TRUE(large.remove());
    ASSERT_TRUE(PackFolder(folder.Path("B"_s), path));
    EXPECT_TRUE(Unpack(path));

    const QString deep = folder.Path("deep/er/a.zip"_s);
    for (const auto& [from, to] :
         {std::pair(QString(), path), {folder.Path("B"_s), QString()}, {path, deep}}) {
        EXPECT_FALSE(PackFolder(from, to, &error)) << from.toStdString();
        EXPECT_EQ(error, "文件夹不存在: "_s + from);
    }
    EXPECT_TRUE(PackFolder(folder.Path("B"_s), deep)) << "the folders of an archive are made";
}

TEST_F(ArchiveTest, EntryThatLeadsOutStopsUnpackingAndWritesNothing)
{
    const char* hostile[] = {"../evil", "B/../../evil",    "/evil",    "C:/evil",  "C:evil",
                             "C:",      "./evil",          "B/./evil", "..\\evil", "B//evil",
                             "B/..",    "B\\..\\..\\evil", "ev\nil",   "B\x81"};
    for (const char* name : hostile) {
        const QString path = MakeArchive({{"good", "1"}, {name, "evil"}, {"late", "1"}});
        EXPECT_FALSE(Unpack(path)) << name;
        const QDir out(folder.Path("in/out"_s));
        EXPECT_EQ(out.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("good"_s));
        EXPECT_FALSE(QFileInfo::exists(folder.Path("in/evil"_s))) << name;
        EXPECT_FALSE(QFileInfo::exists(folder.Path("evil"_s))) << name;
    }
}

TEST_F(ArchiveTest, LinksAndEncryptedAndDamagedEntriesAreRefused)
{
    EXPECT_FALSE(Unpack(MakeArchive({{"link", "/etc", S_IFLNK | 0777}})));
    EXPECT_FALSE(Unpack(MakeArchive({{"secret", "text", S_IFREG, "key"}})));
    EXPECT_FALSE(Unpack(folder.Write("empty.zip"_s, QByteArray())));
    EXPECT_FALSE(Unpack(folder.Write("text.zip"_s, "no archive at all")));
    EXPECT_EQ(error, "不是有效的压缩包: "_s + folder.Path("text.zip"_s));

    const QString headless = MakeArchive({{"file", "text"}});
    Patch(headless, "PK\1\2", 42, QByteArray("\0\1\0\0", 4)); // where the entry would begin
    EXPECT_FALSE(Unpack(headless));
    EXPECT_EQ(error, "压缩包条目无法解压: file"_s);

    const std::pair<int, QByteArray> lies[] = {{24, QByteArray("\x10\0\0\0", 4)}, // declares 16 bytes
                                               {24, QByteArray("\0\0\0\x7F", 4)}, // declares 2 GiB
                                               {16, "abcd"}};                     // checksum
    for (const auto& [offset, bytes] : lies) {
        const QString path = MakeArchive({{"bomb", QByteArray(5000000, 'a')}});
        Patch(path, "PK\1\2", offset, bytes);
        Patch(path, "PK\3\4", offset - 2, bytes);
        EXPECT_FALSE(Unpack(path)) << offset;
    }
    EXPECT_TRUE(QDir(folder.Path("in/out"_s)).isEmpty());
}

TEST_F(ArchiveTest, NulInANameIsSeenBeforeACommentToo)
{
    const QByteArray plain = ReadFile(MakeArchive({{"a", "1"}, {"new#.txt", "2"}}));
    const QByteArray commented = QByteArray(plain).replace(plain.size() - 2, 2, QByteArray("\4\0PK\5\6", 6));
    for (const QByteArray& archive : {plain, commented}) {
        for (const char replacement : {' ', '\0'}) {
            const QByteArray content = QByteArray(archive).replace('#', replacement);
            EXPECT_EQ(Unpack(folder.Write("a.zip"_s, content)), replacement == ' ');
        }
    }
}

TEST_F(ArchiveTest, DamagedEntryCostsNoOldFileAndEachFailureNamesWhatItIsOf)
{
    const QString old = folder.Write("in/out/file"_s, "old");
    const QString damaged = MakeArchive({{"file", "new"}});
    Patch(damaged, "PK\1\2", 16, "abcd"); // checksum
    EXPECT_FALSE(Unpack(damaged));
    EXPECT_TRUE(error.endsWith(" file"_s)) << error.toStdString();
    EXPECT_EQ(ReadFile(old), "old");
    EXPECT_EQ(QDir(folder.Path("in/out"_s)).entryList(QDir::Files | QDir::Hidden).size(), 1);

    QDir().mkpath(folder.Path("in/out/folder"_s));
    EXPECT_FALSE(Unpack(MakeArchive({{"folder", "new"}})));
    EXPECT_TRUE(error.contains("/in/out/folder”：Is a directory"_s)) << error.toStdString();
    EXPECT_FALSE(Unpack(MakeArchive({{"file/x", "new"}})));
    EXPECT_TRUE(error.contains("/in/out/file”：Not a directory"_s)) << error.toStdString();
    EXPECT_FALSE(Unpack(MakeArchive({{QByteArray("d/").repeated(3000) + 'x', "1"}})));
    EXPECT_TRUE(error.endsWith("/out/"_s + "d/"_s.repeated(32) + "”：File name too long"_s))
        << error.toStdString();
    EXPECT_FALSE(Unpack(folder.Path("missing.zip"_s)));
    EXPECT_TRUE(error.contains("/missing.zip”：No such file"_s)) << error.toStdString();
}

TEST_F(ArchiveTest, NothingIsWrittenThroughALinkAndOldFilesAreReplaced)
{
    const QString outside = folder.Write("outside/file"_s, "old");
    folder.Write("in/out/plain"_s, "a longer old text");
    QFile::link(outside, folder.Path("in/out/file"_s));
    ASSERT_TRUE(Unpack(MakeArchive({{"file", "new"}, {"plain", "new"}})));
    EXPECT_EQ(ReadFile(outside), "old");
    EXPECT_EQ(ReadFile(folder.Path("in/out/file"_s)), "new");
    EXPECT_EQ(ReadFile(folder.Path("in/out/plain"_s)), "new");

    QFile::link(folder.Path("outside"_s), folder.Path("in/out/sub"_s));
    EXPECT_FALSE(Unpack(MakeArchive({{"sub/file", "new"}})));
    EXPECT_EQ(ReadFile(outside), "old");
}

TEST_F(ArchiveTest, OnlyTheWantedEntriesAreUnpacked)
{
    const QString path = MakeArchive({{"other/x", "1"}, {"project\\new.prj", "2"}, {"projects", "3"}});
    const QString out = folder.Path("out"_s);
    const auto below = [](const QString& name) { return name.startsWith("project/"_s); };
    EXPECT_TRUE(UnpackArchive(path, out, below));
    EXPECT_EQ(ReadFile(out + "/project/new.prj"_s), "2");
    EXPECT_EQ(QDir(out).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}
