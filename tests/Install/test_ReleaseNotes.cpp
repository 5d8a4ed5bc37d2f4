// One version for all, and one change log that the notes of packages and AppStream are made of.

#include "InstalledTree.h"

#include "Release.h"

#include <QXmlStreamReader>

namespace {

const char* const epoch = "1479808800"; // 2016-11-22 10:00:00 UTC

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

sRun_t notes(const char* form, const QString& changeLog = NALVO_SOURCE_DIR "/CHANGELOG.md")
{
    return runProgram("sh", {NALVO_SOURCE_DIR "/tools/release-notes", form},
                      {QStringLiteral("SOURCE_DATE_EPOCH=") + epoch, "NALVO_CHANGELOG=" + changeLog});
}

/// The items of the change log as plain text, in their order.
QStringList items()
{
    QStringList items;
    for (const QString& line : QString::fromUtf8(contentOf(NALVO_SOURCE_DIR "/CHANGELOG.md")).split('\n')) {
        if (line.startsWith("- "))
            items.append(line.mid(2));
        else if (line.startsWith("  ") && !items.isEmpty())
            items.last() += line;
    }
    for (QString& item : items)
        item = item.remove('`').remove("**").simplified();
    return items;
}

/// The text of a change log with one release.
QByteArray changeLog(const QByteArray& heading, const QByteArray& rest)
{
    return "# Changes\n\n" + heading + "\n\n### Window\n" + rest;
}

class ChangeLogs : public testing::Test
{
protected:
    sRun_t notesOf(const char* form, const QByteArray& text)
    {
        QFile file(m_dir.filePath("CHANGELOG.md"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        return notes(form, file.fileName());
    }

private:
    QTemporaryDir m_dir;
};

} // namespace

TEST(ReleaseNotes, theNewestReleaseIsThatOfThePrograms)
{
    EXPECT_EQ(notes("version").out.trimmed(), Release::own().text().toLatin1());
    EXPECT_EQ(Release::own().text().replace('-', '.'), NALVO_VERSION);
}

TEST(ReleaseNotes, aPackageHasThemAll)
{
    const sRun_t run = notes("debian");
    ASSERT_EQ(run.status, 0) << run.out.constData();
    EXPECT_TRUE(run.out.startsWith(QByteArray("nalvo (" NALVO_VERSION))) << run.out.left(80).constData();
    EXPECT_TRUE(run.out.contains("\n -- Nalvo developers <"));
    const QList<QByteArray> lines = run.out.split('\n');
    for (const QByteArray& line : lines)
        EXPECT_LE(QString::fromUtf8(line).size(), 80) << line.constData();
    const QString text = QString::fromUtf8(run.out).simplified();
    ASSERT_GT(items().size(), 100);
    int from = 0;
    for (const QString& item : items()) {
        const int at = text.indexOf("* " + item, from);
        EXPECT_GE(at, 0) << qPrintable(item);
        from = qMax(from, at);
    }
}

TEST(ReleaseNotes, appStreamHasThemAll)
{
    const sRun_t run = notes("appstream");
    ASSERT_EQ(run.status, 0) << run.out.constData();
    QXmlStreamReader xml(run.out);
    QString release;
    QStringList texts;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "release" && release.isEmpty())
            release = xml.attributes().value("version").toString();
        else if (xml.name() == "li")
            texts.append(xml.readElementText(QXmlStreamReader::IncludeChildElements).simplified());
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    EXPECT_EQ(release, Release::own().text());
    EXPECT_EQ(texts.join('\n').toStdString(), items().join('\n').toStdString());
}

TEST_F(ChangeLogs, aReleaseThatIsNotOutIsOlderThanTheReleaseItself)
{
    const QByteArray text = changeLog("## 2017-2.3 (not released)", "- One.\n");
    EXPECT_EQ(notesOf("debian", text).out.constData(),
              std::string("nalvo (2017.2.3~20161122) bookworm; urgency=medium\n\n  [ Window ]\n  * One.\n\n"
                          " -- Nalvo developers <nalvo@brelmont.example>  Tue, 22 Nov 2016 10:00:00 +0000\n"));
    EXPECT_TRUE(notesOf("appstream", text)
                    .out.contains("<release version=\"2017-2.3\" date=\"2016-11-22\" type=\"development\">"));
}

TEST_F(ChangeLogs, aReleaseHasItsDateAndEarlierOnesFollow)
{
    const QByteArray text = changeLog("## 2017-2.3 (2017-02-28)", "- A `name` & <more>\n  in **two** lines.\n\n") +
                            "## 2016-9.1 (2016-09-30)\n\n### Window\n- Old.\n";
    EXPECT_EQ(notesOf("debian", text).out.constData(),
              std::string("nalvo (2017.2.3) bookworm; urgency=medium\n\n  [ Window ]\n"
                          "  * A name & <more> in two lines.\n\n"
                          " -- Nalvo developers <nalvo@brelmont.example>  Tue, 28 Feb 2017 00:00:00 +0000\n\n"
                          "nalvo (2016.9.1) bookworm; urgency=medium\n\n  [ Window ]\n  * Old.\n\n"
                          " -- Nalvo developers <nalvo@brelmont.example>  Fri, 30 Sep 2016 00:00:00 +0000\n"));
    const QByteArray releases = notesOf("appstream", text).out;
    EXPECT_TRUE(releases.contains("<release version=\"2017-2.3\" date=\"2017-02-28\" type=\"stable\">"));
    EXPECT_TRUE(releases.contains("<li>A <code>name</code> &amp; &lt;more&gt; in two lines.</li>"))
        << releases.constData();
    EXPECT_TRUE(releases.contains("<release version=\"2016-9.1\" date=\"2016-09-30\" type=\"stable\">"));
}

TEST_F(ChangeLogs, whatIsNotUnderstoodIsAnErrorWithItsLine)
{
    const struct
    {
        QByteArray text;
        const char* error;
    } cases[] = {
        {changeLog("## 2017.2.3 (2017-02-28)", "- One.\n"), ":3: expected "},
        {changeLog("## 2017-2.3 (soon)", "- One.\n"), ":3: expected "},
        {changeLog("## 2017-2.3 (2017-02-28)", "Free text.\n"), ":6: neither a heading nor an item"},
        {changeLog("## 2017-2.3 (2017-02-28)", "- One.\n") + "## 2017-1.1 (not released)\n",
         ":7: only the newest release"},
        {"# Changes\n", ": no release"},
    };
    for (const auto& each : cases) {
        for (const char* form : {"version", "debian", "appstream"}) {
            const sRun_t run = notesOf(form, each.text);
            EXPECT_NE(run.status, 0) << each.text.constData();
            EXPECT_TRUE(run.out.contains(each.error)) << run.out.constData();
        }
    }
}

TEST(ReleaseNotes, anUnknownFormIsRefused)
{
    EXPECT_EQ(notes("rpm").status, 2);
    EXPECT_TRUE(notes("rpm").out.contains("tools/release-notes debian"));
}
