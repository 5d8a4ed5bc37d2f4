// Which files are filters.

#include "FilterFixture.h"
#include "FilterText.h"
#include "QtPrinters.h"

#include <sys/stat.h>

using namespace nsModImport;

namespace {

class FilterFiles : public FilterFixture
{
protected:
    QStringList names() { return ImportFilter(dir.path()).filterNames(); }
};

} // namespace

TEST_F(FilterFiles, theSameNameAgainReplacesTheEarlierOne)
{
    write("b/x.txt", "type: T001\nname: same\ndescr: second\n");
    write("a.txt", "type: T001\nname: same\ndescr: first\n");
    write("c", "type: T001\nname: other\nname: no\ndescr:\t with blanks\ndescr: no\n");
    ImportFilter filters(dir.path());
    EXPECT_EQ(filters.filterNames(), QStringList({"other", "same"}));
    EXPECT_EQ(filters.filter("same")->description(), "second");
    EXPECT_EQ(filters.filter("other")->description(), "with blanks");
    EXPECT_EQ(filters.filter("none"), nullptr);
}

TEST_F(FilterFiles, aHeadLineWithoutALineBreakIsLost)
{
    write("a", "name: a\ntype: T001");
    write("b", "type: T001\nname: b");
    write("c", "descr: d\r\nname: c\r\ntype: T001\r\n");
    write("d", " type: T001\nname: d\n");
    write("e", "type: T002\nname: e\ntype: T001\n");
    EXPECT_EQ(names(), QStringList({"", "c"}));
}

TEST_F(FilterFiles, theFirstFolderThatExistsIsTaken)
{
    const QString root = QFileInfo(dir.path()).canonicalFilePath();
    const QString program = root + "/x/build/release";
    QDir().mkpath(program);
    EXPECT_EQ(ImportFilter::filterDir(program), "");
    EXPECT_TRUE(ImportFilter(QString()).filterNames().isEmpty());
    for (const char* place : {"/x/Common/asmImportFilter", "/x/asmImportFilter", "/x/build/asmImportFilter"}) {
        QDir().mkpath(root + place);
        EXPECT_EQ(ImportFilter::filterDir(program), root + place);
    }
}

TEST_F(FilterFiles, theProgramFindsThoseThatShip)
{
    EXPECT_EQ(ImportFilter().filterNames().size(), 5);
}

TEST_F(FilterFiles, whatIsNoFilterIsLeftOut)
{
    write("binary", QByteArray(100000, '\xff') + QByteArray(1000, '\0') + "\ntype: T001\nname: binary\n");
    write("nul", QByteArray("type: T001\nname: cut\n\0tagRule: \"a\" \"b\"\n", 40));
    write("line", QByteArray(100000, 'x') + "\ntype: T001\nname: after a long line\n");
    write("empty", "");
    const QString secret = write("secret", "type: T001\nname: secret\n");
    QFile::setPermissions(secret, {});
    QDir().mkpath(dir.filePath("folder"));
    QFile::link(dir.path(), dir.filePath("folder/circle"));
    QFile::link("circle2", dir.filePath("circle2"));
    QFile::link(dir.filePath("nowhere"), dir.filePath("dangling"));
    QFile::link("/dev/zero", dir.filePath("endless"));
    ASSERT_EQ(mkfifo(qPrintable(dir.filePath("pipe")), 0600), 0);
    const QStringList found = names();
    QFile::setPermissions(secret, QFile::ReadOwner);
    EXPECT_EQ(found.filter("a"), QStringList("after a long line"));
    EXPECT_TRUE(found.contains("cut"));
    EXPECT_LE(found.size(), 3) << "root reads everything";
}

TEST_F(FilterFiles, aHugeFileIsNone)
{
    const QString path = write("huge", "type: T001\nname: huge\n");
    QFile file(path);
    ASSERT_TRUE(file.resize(qint64(1) << 40)) << "it takes no room on the disk";
    EXPECT_EQ(names(), QStringList());
    QByteArray bytes;
    EXPECT_EQ(readTextFile(path, &bytes), fileTooLarge);
    EXPECT_EQ(readTextFile(dir.path(), &bytes), fileUnreadable);
    EXPECT_EQ(readTextFile("/dev/zero", &bytes), fileUnreadable);
}

TEST_F(FilterFiles, allLineEndsAreLineFeeds)
{
    QByteArray bytes;
    ASSERT_EQ(readTextFile(write("a", "a\r\nb\rc\n\r\r\nd\r\re\r"), &bytes), fileRead);
    EXPECT_EQ(bytes, "a\nb\nc\n\nd\n\ne\n");
}

TEST_F(FilterFiles, theTextOfAFileIsCutAtItsFirstNul)
{
    EXPECT_EQ(importText(QByteArray("a\nb\0c\n", 6)), "a\nb");
    EXPECT_EQ(importText("\xc2\xb5"), QString(QChar(0xb5)));
    EXPECT_EQ(importText("\xb5s\xa0"), QString(QChar(0xb5)) + 's' + QChar(0xa0));
    EXPECT_EQ(importText("\xe2\x80\xa8").size(), 3) << "no character that a text widget takes for a line end";
}
