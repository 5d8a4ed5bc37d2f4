#include "HelpSources.h"

#include "InstructionPages.h"
#include "MarkdownConverter.h"
#include "MessageTables.h"
#include "PageReader.h"
#include "Pictures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nsHelpBuild {

namespace {

/// The change log as a page: its title is that of the page.
bool readChangeLog(const QString& path, HelpPage* page, QString* error)
{
    page->source = path;
    page->id = QStringLiteral("releaseNotes");
    page->title = QStringLiteral("Release notes");
    page->headLines = 1;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = path + QStringLiteral(": ") + file.errorString();
        return false;
    }
    file.readLine();
    page->markdown = file.readAll();
    return true;
}

void convert(HelpPage* page)
{
    const MessageTexts messages = messagesOfPage(page->id);
    MarkdownConverter(messages).convert(page);
}

} // namespace

void HelpSources::read(const QString& folder, const QString& changeLog)
{
    m_folder = folder;
    m_errors.clear();
    m_pages = readPages(folder + QStringLiteral("/pages"), &m_errors);
    m_pages += instructionPages(folder + QStringLiteral("/instructions"), &m_errors);
    HelpPage releaseNotes;
    QString error;
    if (readChangeLog(changeLog, &releaseNotes, &error))
        m_pages.append(releaseNotes);
    else
        m_errors.append(error);
    for (HelpPage& page : m_pages)
        convert(&page);
    m_contents = readContents(folder + QStringLiteral("/contents.txt"), &m_errors);
}

void HelpSources::setPictureWidths(const QString& pictureDir)
{
    for (HelpPage& page : m_pages) {
        if (!page.pictures.isEmpty())
            page.html = withPictureWidths(page.html, pictureDir);
    }
}

bool readText(const QString& path, HelpPage* page, QString* error)
{
    const QFileInfo info(path);
    bool isRead = false;
    if (info.suffix() == QLatin1String("md") && info.completeBaseName() == QLatin1String("CHANGELOG")) {
        isRead = readChangeLog(path, page, error);
    } else if (info.dir().dirName() == QLatin1String("instructions")) {
        HeadedText text;
        isRead = text.read(path, error);
        page->source = path;
        page->id = info.completeBaseName();
        page->title = text.head.value(QStringLiteral("title"));
        page->markdown = text.body;
        page->headLines = text.headLines;
    } else {
        isRead = readPage(path, page, error);
    }
    if (isRead)
        convert(page);
    return isRead;
}

} // namespace nsHelpBuild
