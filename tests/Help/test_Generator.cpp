// The parts of the generator, on small texts.

#include "HelpTree.h"
#include "QtPrinters.h"

#include "LinkCheck.h"
#include "MarkdownConverter.h"
#include "MessageEntries.h"
#include "MessageTables.h"
#include "PageReader.h"
#include "Pictures.h"
#include "SiteWriter.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

using namespace nsHelpBuild;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// A page from its Markdown.
HelpPage converted(const QByteArray& markdown, const QString& id = "page", const MessageTexts& messages = {})
{
    HelpPage page;
    page.id = id;
    page.title = "Title";
    page.markdown = markdown;
    MarkdownConverter(messages).convert(&page);
    return page;
}

QStringList anchorNames(const HelpPage& page)
{
    QStringList names;
    for (const HelpAnchor& anchor : page.anchors)
        names.append(anchor.name);
    return names;
}

class HelpFiles : public ::testing::Test
{
protected:
    QString write(const QString& name, const QByteArray& text) const
    {
        const QString path = m_dir.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return path;
    }

    QString path() const { return m_dir.path(); }

    /// What is wrong with a page of this text; the path is left out.
    QString errorOf(const QByteArray& text) const
    {
        HelpPage page;
        QString error;
        const QString file = write("page.md", text);
        const bool isRead = readPage(file, &page, &error);
        EXPECT_EQ(isRead, error.isEmpty());
        return error.remove(file);
    }

private:
    QTemporaryDir m_dir;
};

// Reading.

TEST_F(HelpFiles, APageHasAHeadAndABody)
{
    HelpPage page;
    QString error;
    const QByteArray text =
        "id: langNumbers\ntitle:  Numbers: all of them\nkeywords: hex, , octal \n---\nBody\n---\nmore\n";
    ASSERT_TRUE(readPage(write("p.md", text), &page, &error)) << error.toStdString();
    EXPECT_EQ(page.id, "langNumbers");
    EXPECT_EQ(page.file(), "langnumbers.html");
    EXPECT_EQ(page.title, "Numbers: all of them");
    EXPECT_EQ(page.keywords, QStringList({"hex", "octal"}));
    EXPECT_EQ(page.markdown, QByteArray("Body\n---\nmore\n"));
    EXPECT_EQ(page.headLines, 4);
}

TEST_F(HelpFiles, WhatIsNoPageIsSaid)
{
    EXPECT_EQ(errorOf("id: a\ntitle: b\n---\n"), QString());
    EXPECT_EQ(errorOf(""), ": the head has no end \"---\"");
    EXPECT_EQ(errorOf("id: a\ntitle: b\n"), ": the head has no end \"---\"");
    EXPECT_EQ(errorOf("id: a\nno key\n---\n"), ":2: expected \"key: value\" or \"---\"");
    EXPECT_EQ(errorOf("id: a\n\n---\n"), ":2: expected \"key: value\" or \"---\"");
    EXPECT_EQ(errorOf("title: b\n---\n"), ": the id is missing or is no word: \"\"");
    EXPECT_EQ(errorOf("id: a b\ntitle: b\n---\n"), ": the id is missing or is no word: \"a b\"");
    EXPECT_EQ(errorOf("id: ../a\ntitle: b\n---\n"), ": the id is missing or is no word: \"../a\"");
    EXPECT_EQ(errorOf("id: a\n---\n"), ": the title is missing");
}

TEST_F(HelpFiles, PagesAreReadFromAllFoldersAndEachIdOnce)
{
    write("b/two.md", "id: two\ntitle: Two\n---\n");
    write("a.md", "id: one\ntitle: One\n---\n");
    write("c.md", "id: TWO\ntitle: Two again\n---\n");
    write("d.md", "nothing");
    write("e.txt", "nothing");
    QStringList errors;
    const QVector<HelpPage> pages = readPages(path(), &errors);
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(pages.at(0).title, "One");
    EXPECT_EQ(pages.at(1).title, "Two");
    EXPECT_EQ(errors, QStringList({path() + "/c.md: another page has the id TWO",
                                   path() + "/d.md:1: expected \"key: value\" or \"---\""}));
}

TEST_F(HelpFiles, ContentsNestByIndentation)
{
    QStringList errors;
    const auto contents =
        readContents(write("c.txt", "# no entry\n\none\n= Section\n  two\n    three\n  four\nfive\n"), &errors);
    EXPECT_EQ(errors, QStringList());
    ASSERT_EQ(contents.size(), 3);
    EXPECT_EQ(contents.at(0).pageId, "one");
    EXPECT_EQ(contents.at(1).title, "Section");
    EXPECT_EQ(contents.at(1).pageId, QString());
    ASSERT_EQ(contents.at(1).entries.size(), 2);
    EXPECT_EQ(contents.at(1).entries.at(0).entries.at(0).pageId, "three");
    EXPECT_EQ(contents.at(1).entries.at(1).pageId, "four");
    EXPECT_EQ(contents.at(2).pageId, "five");
}

TEST_F(HelpFiles, ContentsThatAreWrongAreSaid)
{
    QStringList errors;
    const QString file = write("c.txt", "one\n    two\n");
    readContents(file, &errors);
    EXPECT_EQ(errors, QStringList(file + ": indented too far: two"));
    errors.clear();
    readContents(path() + "/none.txt", &errors);
    EXPECT_EQ(errors, QStringList(path() + "/none.txt: No such file or directory"));
}

TEST_F(HelpFiles, AnInstructionNeedsItsFile)
{
    QStringList errors;
    HelpSources sources;
    write("pages/a.md", "id: a\ntitle: A\n---\n");
    write("instructions/NOSUCH.md", "title: x\n---\n");
    sources.read(path(), path() + "/none.md");
    EXPECT_TRUE(sources.errors().contains(path() + "/instructions/LOAD.md: No such file or directory"));
    EXPECT_TRUE(sources.errors().contains(path() + "/instructions/NOSUCH.md: no instruction has this name"));
    EXPECT_TRUE(sources.errors().contains(path() + "/none.md: No such file or directory"));
    EXPECT_TRUE(sources.errors().contains(path() + "/contents.txt: No such file or directory"));
}

// Converting.

TEST(HelpMarkdown, HeadingsAreAnchors)
{
    const HelpPage page =
        converted("Intro\n\n## errSyntax\n\n## Two words, and `code`!\n\n### Named here {#name-1}\n\n## #EQU {#EQU}\n");
    EXPECT_EQ(anchorNames(page), QStringList({"errSyntax", "two-words-and-code", "name-1", "EQU"}));
    EXPECT_EQ(page.anchors.at(2).title, "Named here");
    EXPECT_EQ(page.anchors.at(2).above, "Two words, and code!");
    EXPECT_TRUE(page.anchors.at(0).isWord);
    EXPECT_FALSE(page.anchors.at(1).isWord);
    EXPECT_TRUE(page.anchors.at(3).isWord);
    EXPECT_THAT(page.html.toStdString(), HasSubstr("<a id=\"name-1\"></a>\n<h3>Named here</h3>"));
    EXPECT_THAT(page.html.toStdString(), Not(HasSubstr("{#")));
}

TEST(HelpMarkdown, AMessageShowsItsGradeAndText)
{
    const MessageTexts messages{{"errX", {MessageText::gradeError, "A <bad> thing: %1"}}};
    const HelpPage page = converted("## errX\n\nMeaning.\n\n## Other\n\nText.\n", "page", messages);
    EXPECT_THAT(page.html.toStdString(),
                HasSubstr("<p class=\"message error\"><span>Error</span> A &lt;bad&gt; thing: %1</p>"));
    EXPECT_EQ(page.html.count("class=\"message"), 1);
    EXPECT_EQ(page.anchors.at(0).text, "Error: A <bad> thing: %1\n\nMeaning.\n\n");
    EXPECT_EQ(page.anchors.at(1).text, "Text.\n\n");
}

TEST(HelpMarkdown, LinksLeadToFiles)
{
    const HelpPage page =
        converted("[a](pageid:LangNumbers) [b](pageid:x#Two%20words) [c](#EQU) [d](https://e.org/) [e](file.md)\n");
    ASSERT_EQ(page.links.size(), 3);
    EXPECT_EQ(page.links.at(0).pageId, "LangNumbers");
    EXPECT_EQ(page.links.at(1).anchor, "Two words");
    EXPECT_EQ(page.links.at(2).pageId, "page");
    EXPECT_EQ(page.links.at(2).anchor, "EQU");
    EXPECT_EQ(page.webLinks, QStringList({"https://e.org/", "file.md"}));
    EXPECT_THAT(page.html.toStdString(), HasSubstr("href=\"langnumbers.html\""));
    EXPECT_THAT(page.html.toStdString(), HasSubstr("href=\"x.html#Two%20words\""));
    EXPECT_THAT(page.html.toStdString(), HasSubstr("href=\"page.html#EQU\""));
}

TEST(HelpMarkdown, PicturesAreNamed)
{
    const HelpPage page = converted("![The page](shot:editor) ![else](https://e.org/a.png)\n");
    EXPECT_EQ(page.pictures, QStringList("editor.png"));
    EXPECT_EQ(page.webLinks, QStringList("https://e.org/a.png"));
    EXPECT_THAT(page.html.toStdString(), HasSubstr("<img src=\"pictures/editor.png\" alt=\"The page\" />"));
}

TEST(HelpMarkdown, NotesAreSetOff)
{
    const std::string html = converted("**Note:** one\n\n**Real core:** two\n\n**Bold** three\n").html.toStdString();
    EXPECT_THAT(html, HasSubstr("<div class=\"note\">\n<p><strong>Note:</strong> one</p>\n</div>"));
    EXPECT_THAT(html, HasSubstr("<div class=\"realcore\">\n<p><strong>Real core:</strong> two</p>\n</div>"));
    EXPECT_THAT(html, HasSubstr("</div>\n<p><strong>Bold</strong>"));
}

TEST(HelpMarkdown, TablesScrollByThemselves)
{
    const std::string html = converted("| a | b |\n|---|---|\n| c | d |\n").html.toStdString();
    EXPECT_THAT(html, HasSubstr("<div class=\"scroll\">\n<table>"));
    EXPECT_THAT(html, HasSubstr("</table>\n</div>"));
}

TEST(HelpMarkdown, HtmlIsRefused)
{
    EXPECT_EQ(converted("<div>x</div>\n").problems.size(), 1);
    EXPECT_EQ(converted("a <b>x</b>\n").problems.size(), 2);
    EXPECT_EQ(converted("- <i>\n").problems.size(), 1);
    EXPECT_EQ(converted("`<b>` and a &lt; b\n\n```text\n<b>\n```\n").problems, QStringList());
}

TEST(HelpMarkdown, ExamplesHaveKindAndLine)
{
    HelpPage page;
    page.headLines = 4;
    page.markdown = "Text\n\n```psm pb6 errX@1\n A\n B\n```\n\n- item\n\n  ```session\n  $ x\n  ```\n\n```perl\n```\n";
    MarkdownConverter({}).convert(&page);
    ASSERT_EQ(page.examples.size(), 3);
    EXPECT_EQ(page.examples.at(0).info, "psm pb6 errX@1");
    EXPECT_EQ(page.examples.at(0).text, " A\n B\n");
    EXPECT_EQ(page.examples.at(0).line, 7);
    EXPECT_EQ(page.examples.at(1).text, "$ x\n");
    EXPECT_EQ(page.problems, QStringList("line 18: an example of unknown kind: \"perl\""));
    EXPECT_THAT(page.html.toStdString(), HasSubstr("<div class=\"wrong\">"));
}

TEST(HelpMarkdown, ProseIsWithoutCodeAndNames)
{
    const HelpPage page = converted("One `two` [three](pageid:four) **Bold** here.\n\n## FIVE\n\n## Six "
                                    "seven\n\n```text\neight\n```\n\n- nine\n\n| ten |\n|---|\n| eleven |\n");
    EXPECT_EQ(page.prose.simplified(), "One three here. Six seven nine ten eleven");
}

TEST(HelpMarkdown, EntriesAreTextWithTheirExamples)
{
    HelpPage page = converted(
        "## errX\n\nA long line of words that is broken where eighty columns are full, so that a terminal shows it "
        "well.\n\n"
        "```psm errX@2\n#EQU a, 1\n        LOAD s0\n\n```\n\n```psm\n        LOAD s0, 1\n            x\n```\n\n"
        "- item\n- second\n\n```psm\n  y\n```\n",
        "asmFeMessages", {{"errX", {MessageText::gradeError, "Bad."}}});
    EXPECT_EQ(messageEntries({page}).toStdString(),
              "errX\tasmFeMessages\tTitle\terrX\n"
              "  Error: Bad.\n"
              "\n"
              "  A long line of words that is broken where eighty columns are full, so that a\n"
              "  terminal shows it well.\n"
              "\n"
              "  Provokes it:\n"
              "\n"
              "      #EQU a, 1\n"
              "              LOAD s0\n"
              "\n"
              "  Mended:\n"
              "\n"
              "      LOAD s0, 1\n"
              "          x\n"
              "\n"
              "  - item\n"
              "  - second\n"
              "\n"
              "      y\n");
    page.id = "langNumbers";
    EXPECT_EQ(messageEntries({page}), QByteArray()) << "not a page of messages";
}

// Checking.

/// The problems of the pages alone; all messages lack their entries here.
QStringList problemsOf(const QVector<HelpPage>& pages, const QVector<ContentsEntry>& contents)
{
    return checkPages(pages, contents).filter(QRegularExpression("^(?!.*a message has no entry)"));
}

ContentsEntry entry(const QString& pageId)
{
    return {QString(), pageId, {}};
}

TEST(HelpLinkCheck, FindsDeadLinksAndAnchors)
{
    const HelpPage one =
        converted("[a](pageid:TWO#There) [b](pageid:two#there) [c](pageid:three) [d](#nowhere)\n", "one");
    const HelpPage two = converted("## There\n", "two");
    EXPECT_EQ(problemsOf({one, two}, {entry("one"), entry("Two")}),
              QStringList({"one: no place has the name two#there", "one: no page has the id three",
                           "one: no place has the name one#nowhere"}));
}

TEST(HelpLinkCheck, FindsWhatTheContentsLackOrNameTwice)
{
    const HelpPage one = converted("", "one");
    const HelpPage two = converted("", "two");
    ContentsEntry section{"Section", QString(), {entry("two"), entry("TWO")}};
    EXPECT_EQ(problemsOf({one, two}, {section, entry("three")}),
              QStringList({"contents: no page has the id three", "one: is missing in the table of contents",
                           "two: stands in the table of contents twice"}));
}

TEST(HelpLinkCheck, FindsWhatAPageMustNotHold)
{
    const HelpPage one =
        converted("## Twice\n\n## Twice\n\n<b>\n\n[a](http://e.org/) [b](https://e.org/) [c](../x.md)\n", "one");
    EXPECT_EQ(problemsOf({one}, {entry("one")}),
              QStringList({"one: two places have the anchor Twice", "one: holds HTML: <b>",
                           "one: a link leads out of the help: http://e.org/",
                           "one: a link leads out of the help: ../x.md"}));
}

TEST(HelpLinkCheck, FindsMessagesWithoutAnEntry)
{
    const HelpPage page = converted("## errSyntax\n", "asmFeMessages");
    const QStringList problems = checkPages({page}, {entry("asmFeMessages")});
    EXPECT_FALSE(problems.contains("asmFeMessages: a message has no entry: errSyntax"));
    EXPECT_TRUE(problems.contains("asmFeMessages: a message has no entry: errExpectArgument"));
    for (const QString& id : messagePages())
        EXPECT_FALSE(problems.filter(id + ": a message has no entry: ").isEmpty()) << id.toStdString();
}

TEST_F(HelpFiles, PicturesThatAreMissingAreFound)
{
    write("one.png", "x");
    const HelpPage page = converted("![1](shot:one) ![2](shot:two)\n");
    EXPECT_EQ(checkPictures({page}, path()), QStringList("page: no picture has the name two.png"));
}

TEST_F(HelpFiles, APictureIsShownAtHalfItsPoints)
{
    QImage(301, 4, QImage::Format_RGB888).save(path() + "/one.png");
    write("two.png", "not a picture, but long enough for the head of one");
    EXPECT_EQ(shownWidth(path() + "/one.png"), 150);
    EXPECT_EQ(shownWidth(path() + "/two.png"), 0);
    EXPECT_EQ(shownWidth(path() + "/three.png"), 0);
    const HelpPage page = converted("![1](shot:one) \xC2\xB5 ![2](shot:two) end\n");
    EXPECT_EQ(withPictureWidths(page.html, path()),
              "<p><img src=\"pictures/one.png\" width=\"150\" alt=\"1\" /> \xC2\xB5 <img src=\"pictures/two.png\" "
              "alt=\"2\" /> end</p>\n");
}

TEST_F(HelpFiles, AMissingPictureIsAFailureOfTheGenerator)
{
    QProcess process;
    process.start(NALVO_HELP_BUILD, {"--site", HelpTree::folder(), HelpTree::changeLog(), path(), path() + "/site"});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_THAT(process.readAllStandardError().toStdString(), HasSubstr("mainWindow: no picture has the name "
                                                                        "mainWindow.png"));
    EXPECT_FALSE(QFile::exists(path() + "/site"));
}

// The web site.

TEST(HelpSite, TheStyleFollowsTheReadersSystem)
{
    const QByteArray style = SiteWriter::siteStyle(
        "a { color: #000; }\n.dark a { color: #fff; }\n.dark body, .dark p { top: 0; }\nb { left: 0; }\n");
    EXPECT_EQ(style.simplified(), QByteArray("a { color: #000; } b { left: 0; } @media (prefers-color-scheme: dark) { "
                                             "html a { color: #fff; } html body, html p { top: 0; } }"));
}

TEST(HelpSite, EveryRuleForTheDarkIsALine)
{
    for (const char* name : {"/style.css", "/site/site.css"}) {
        QFile file(HelpTree::folder() + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray style = SiteWriter::siteStyle(file.readAll());
        EXPECT_FALSE(style.contains(".dark")) << name;
        EXPECT_EQ(style.count('{'), style.count('}')) << name;
        EXPECT_FALSE(style.contains("url(") || style.contains("@import")) << name;
    }
}

} // namespace
