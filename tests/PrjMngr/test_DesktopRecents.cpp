// The recent files of the desktop: a list that belongs to all programs of the user, into which a project is put.

#include "PrjMngrFixture.h"

#include "DesktopRecents.h"
#include "SafeFile.h"
#include "Settle.h"

#include <QFileInfo>
#include <QLockFile>
#include <QXmlStreamReader>

#include <cerrno>

namespace {

using nsModPrj::DesktopRecents;

const QDateTime firstTime(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC);
const QDateTime secondTime(QDate(2026, 8, 9), QTime(10, 11, 12), Qt::UTC);

const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<xbel version=\"1.0\"\n"
                        "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
                        "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"\n"
                        ">\n";
const QByteArray tail = "</xbel>";

/// An entry that another program has made, in a style of its own.
QByteArray entryOf(const QByteArray& href, const QByteArray& application)
{
    return "  <bookmark href='" + href + "' added=\"2020-01-01T00:00:00.123456Z\" modified='2020-01-01T00:00:00Z'\n" +
           "     visited=\"2020-01-01T00:00:00Z\" extra=\"kept\">\n" +
           "    <title>\xc3\x9c"
           "ber &amp; \xf0\x9f\x98\x80</title><!-- kept -->\n" +
           "    <info><metadata owner=\"http://freedesktop.org\"><mime:mime-type type=\"text/plain\"/>\n" +
           "      <bookmark:groups><bookmark:group>Text</bookmark:group></bookmark:groups>\n" +
           "      <bookmark:applications>\n" + application + "      </bookmark:applications><bookmark:private/>\n" +
           "    </metadata></info>\n" + "  </bookmark>\n";
}

const QByteArray foreignApplication =
    "        <bookmark:application name=\"Other\" exec=\"&apos;other %u&apos;\" modified=\"2020-01-01T00:00:00Z\" "
    "count=\"3\"/>\n";

/// What a reader of the list sees: "href|application|count|modified|visited", one an application.
QStringList entriesOf(const QByteArray& list)
{
    QStringList entries;
    QString href;
    QString times;
    QXmlStreamReader reader(list);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.name() == QLatin1String("bookmark")) {
            href = attributes.value("href").toString();
            times = attributes.value("modified").toString() + '|' + attributes.value("visited").toString();
        } else if (reader.name() == QLatin1String("application")) {
            entries.append(
                QStringList{href, attributes.value("name").toString(), attributes.value("count").toString(), times}
                    .join('|'));
        }
    }
    EXPECT_FALSE(reader.hasError()) << list.constData();
    return entries;
}

class DesktopRecentsFile : public PrjMngrFixture
{
protected:
    ~DesktopRecentsFile() override
    {
        SafeFile::setWatch({});
        DesktopRecents::setEverywhere(false);
        qputenv("XDG_DATA_HOME", m_dataHome);
    }
    QString list() const { return path("recently-used.xbel"); }
    void write(const QByteArray& bytes) const
    {
        QFile file(list());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    bool add() const { return DesktopRecents::addTo(list(), "/prj/a.nalvo", firstTime); }

private:
    const QByteArray m_dataHome = qgetenv("XDG_DATA_HOME");
};

} // namespace

// --- the text ---

TEST(DesktopRecentsText, aNewListHasTheProject)
{
    const QByteArray list = DesktopRecents::added(QByteArray(), "/prj/a.nalvo", firstTime);
    EXPECT_TRUE(list.startsWith(head)) << list.constData();
    EXPECT_EQ(entriesOf(list), QStringList("file:///prj/a.nalvo|Nalvo|1|2026-03-04T05:06:07Z|2026-03-04T05:06:07Z"));
    EXPECT_TRUE(list.contains("<mime:mime-type type=\"application/x-nalvo-project\"/>"));
    EXPECT_TRUE(list.contains("exec=\"&apos;nalvo %f&apos;\""));
}

TEST(DesktopRecentsText, entriesOfOthersStayByteForByte)
{
    const QByteArray before = head + entryOf("file:///tmp/b.txt", foreignApplication) + "  <!-- a comment -->\r\n";
    const QByteArray list = DesktopRecents::added(before + tail, "/prj/a.nalvo", firstTime);
    EXPECT_TRUE(list.startsWith(before)) << list.constData();
    EXPECT_TRUE(list.endsWith(tail));
    EXPECT_EQ(entriesOf(list).size(), 2);
}

TEST(DesktopRecentsText, aProjectThatIsThereHasANewTimeAndCount)
{
    const QByteArray once = DesktopRecents::added(QByteArray(), "/prj/a.nalvo", firstTime);
    const QByteArray twice = DesktopRecents::added(once, "/prj/a.nalvo", secondTime);
    EXPECT_EQ(entriesOf(twice), QStringList("file:///prj/a.nalvo|Nalvo|2|2026-08-09T10:11:12Z|2026-08-09T10:11:12Z"));
    EXPECT_TRUE(twice.contains("added=\"2026-03-04T05:06:07Z\""));
    EXPECT_EQ(twice.size(), once.size());
}

TEST(DesktopRecentsText, anEntryOfAnotherProgramForTheProjectIsExtended)
{
    const QByteArray before = head + entryOf("file:///prj/a.nalvo", foreignApplication) + tail;
    const QByteArray list = DesktopRecents::added(before, "/prj/a.nalvo", firstTime);
    const QString times = "|2026-03-04T05:06:07Z|2026-03-04T05:06:07Z";
    EXPECT_EQ(entriesOf(list),
              (QStringList{"file:///prj/a.nalvo|Other|3" + times, "file:///prj/a.nalvo|Nalvo|1" + times}));
    for (const char* kept : {"added=\"2020-01-01T00:00:00.123456Z\"", "extra=\"kept\"", "<!-- kept -->", "text/plain",
                             "<bookmark:group>Text</bookmark:group>", "<bookmark:private/>", "name=\"Other\""})
        EXPECT_TRUE(list.contains(kept)) << kept;
    EXPECT_TRUE(list.contains(foreignApplication));
}

TEST(DesktopRecentsText, anotherWayToWriteThePathIsTheSameProject)
{
    const QByteArray before = head + entryOf("file:///prj/%61%20b.nalvo", foreignApplication) + tail;
    EXPECT_EQ(entriesOf(DesktopRecents::added(before, "/prj/a b.nalvo", firstTime)).size(), 2);
    EXPECT_EQ(DesktopRecents::added(before, "/prj/a b.nalvo", firstTime).count("<bookmark href"), 1);
}

TEST(DesktopRecentsText, aPathMayHaveAnyCharacters)
{
    const QString name = QString::fromUtf8("/a&b/<c>/\"d'/\xc3\xa4%20 \xf0\x9f\x98\x80.nalvo");
    const QByteArray once = DesktopRecents::added(QByteArray(), name, firstTime);
    const QByteArray twice = DesktopRecents::added(once, name, secondTime);
    ASSERT_EQ(entriesOf(twice).size(), 1) << twice.constData();
    EXPECT_EQ(QUrl::fromEncoded(entriesOf(twice).constFirst().section('|', 0, 0).toUtf8()).toLocalFile(), name);
}

TEST(DesktopRecentsText, whatIsNoSuchListIsLeftAlone)
{
    const QByteArray entry = entryOf("file:///prj/a.nalvo", foreignApplication);
    const QList<QByteArray> lists = {
        "not XML",
        head,
        head + "<bookmark>" + tail,
        head + tail + "rest",
        "<html></html>",
        "<xbel version=\"1.0\"></xbel>",
        head.chopped(2) + "/>",
        "<!DOCTYPE xbel [<!ENTITY a \"aaaa\">]>" + head.mid(head.indexOf('\n') + 1) + tail,
        head + "<title>\xff</title>" + tail,
        "\xef\xbb\xbf" + head + tail,
        QByteArray(head + tail).replace("bookmark=", "mark="),
        head + "<bookmark href=\"file:///prj/a.nalvo\"/>" + tail,
        head +
            QByteArray(entry)
                .replace("bookmark:", "b:")
                .replace("<info>", "<info xmlns:b=\"http://www.freedesktop.org/standards/desktop-bookmarks\">") +
            tail,
        QByteArray(head + tail).prepend(' '),
    };
    for (const QByteArray& list : lists)
        EXPECT_TRUE(DesktopRecents::added(list, "/prj/a.nalvo", firstTime).isNull()) << list.constData();
    EXPECT_FALSE(DesktopRecents::added(head + entry + tail, "/prj/a.nalvo", firstTime).isNull())
        << "the cases show something";
}

// --- the file ---

TEST_F(DesktopRecentsFile, isMadeForItsOwnerAlone)
{
    EXPECT_TRUE(add());
    EXPECT_EQ(entriesOf(content(list())).size(), 1);
    EXPECT_EQ(QFileInfo(list()).permissions() & ~(QFile::ReadUser | QFile::WriteUser),
              QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_FALSE(QFile::exists(list() + ".lock"));
}

TEST_F(DesktopRecentsFile, keepsItsRights)
{
    write(head + tail);
    QFile::setPermissions(list(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    EXPECT_TRUE(add());
    EXPECT_TRUE(QFileInfo(list()).permissions() & QFile::ReadGroup);
}

TEST_F(DesktopRecentsFile, isNotMadeWithoutItsFolder)
{
    EXPECT_FALSE(DesktopRecents::addTo(path("none/recently-used.xbel"), "/prj/a.nalvo", firstTime));
    EXPECT_FALSE(QFile::exists(path("none")));
}

TEST_F(DesktopRecentsFile, isLeftAloneWhereItIsNoList)
{
    write("somebody's own file");
    EXPECT_FALSE(add());
    EXPECT_EQ(content(list()), "somebody's own file");
    QFile::remove(list());
    ASSERT_TRUE(QDir().mkdir(list()));
    EXPECT_FALSE(add());
    EXPECT_TRUE(QDir().rmdir(list()));
    ASSERT_TRUE(QFile::link("/dev/null", list()));
    EXPECT_FALSE(add());
    EXPECT_EQ(QFileInfo(list()).symLinkTarget(), "/dev/null");
    QFile::remove(list());
    ASSERT_TRUE(QFile::link(path("nowhere"), list()));
    EXPECT_FALSE(add());
    EXPECT_FALSE(QFile::exists(path("nowhere")));
}

TEST_F(DesktopRecentsFile, isLeftAloneWhereItIsTooLarge)
{
    QByteArray large = head + "<!--" + QByteArray(DesktopRecents::maxBytes, 'x') + "-->" + tail;
    write(large);
    EXPECT_FALSE(add());
    EXPECT_EQ(QFileInfo(list()).size(), large.size());
}

TEST_F(DesktopRecentsFile, isLeftAloneWhileAnotherProgramHasItsLock)
{
    write(head + tail);
    QLockFile lock(list() + ".lock");
    ASSERT_TRUE(lock.tryLock());
    EXPECT_FALSE(add());
    EXPECT_EQ(content(list()), head + tail);
    lock.unlock();
    EXPECT_TRUE(add());
}

TEST_F(DesktopRecentsFile, keepsItsContentWhenTheDiskIsFull)
{
    const QByteArray before = head + entryOf("file:///tmp/b.txt", foreignApplication) + tail;
    write(before);
    SafeFile::setWatch([](SafeFile::eStep_t step) { return step == SafeFile::eStepWrite ? ENOSPC : 0; });
    EXPECT_FALSE(add());
    SafeFile::setWatch({});
    EXPECT_EQ(content(list()), before);
    EXPECT_TRUE(add());
}

// --- the window ---

TEST_F(DesktopRecentsFile, getsAProjectThatIsOpened)
{
    qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    EXPECT_EQ(DesktopRecents::listFile(), list());
    prj.modInitIntermod();
    start();
    ASSERT_TRUE(prj.openPrj(makePrj("first.nalvo"), nsModMsg::MsgGroup::eKeepEarlier));
    settleLayout();
    EXPECT_FALSE(QFile::exists(list())) << "there is no desktop without a display";
    DesktopRecents::setEverywhere(true);
    ASSERT_TRUE(prj.openPrj(makePrj("second.nalvo"), nsModMsg::MsgGroup::eKeepEarlier));
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(list()); }));
    EXPECT_EQ(entriesOf(content(list())).value(0).section('|', 0, 1), "file://" + path("second.nalvo") + "|Nalvo");
    EXPECT_FALSE(prj.openPrj(makeBroken("broken.nalvo"), nsModMsg::MsgGroup::eKeepEarlier));
    settleLayout();
    EXPECT_EQ(entriesOf(content(list())).size(), 1) << "what could not be opened is not there";
}
