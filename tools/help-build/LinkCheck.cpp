#include "LinkCheck.h"

#include "MessageTables.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace nsHelpBuild {

namespace {

void takePageIds(const QVector<ContentsEntry>& contents, QStringList* ids)
{
    for (const ContentsEntry& entry : contents) {
        if (!entry.pageId.isEmpty())
            ids->append(entry.pageId.toLower());
        takePageIds(entry.entries, ids);
    }
}

class Check
{
public:
    explicit Check(const QVector<HelpPage>& pages)
        : m_pages(pages)
    {
        for (const HelpPage& page : pages) {
            QSet<QString>& anchors = m_anchors[page.id.toLower()];
            for (const HelpAnchor& anchor : page.anchors) {
                if (anchors.contains(anchor.name))
                    report(page, QStringLiteral("two places have the anchor ") + anchor.name);
                anchors.insert(anchor.name);
            }
        }
    }

    QStringList run(const QVector<ContentsEntry>& contents)
    {
        for (const HelpPage& page : m_pages)
            checkPage(page);
        checkMessages();
        checkContents(contents);
        return m_problems;
    }

private:
    void report(const HelpPage& page, const QString& text) { m_problems.append(page.id + QStringLiteral(": ") + text); }

    void checkPage(const HelpPage& page)
    {
        for (const QString& problem : page.problems)
            report(page, problem);
        for (const HelpLink& link : page.links) {
            const auto target = m_anchors.constFind(link.pageId.toLower());
            if (target == m_anchors.constEnd())
                report(page, QStringLiteral("no page has the id ") + link.pageId);
            else if (!link.anchor.isEmpty() && !target->contains(link.anchor))
                report(page, QStringLiteral("no place has the name %1#%2").arg(link.pageId, link.anchor));
        }
        for (const QString& url : page.webLinks) {
            if (!url.startsWith(QLatin1String("https://")))
                report(page, QStringLiteral("a link leads out of the help: ") + url);
        }
    }

    void checkMessages()
    {
        for (const QString& id : messagePages()) {
            const QSet<QString> anchors = m_anchors.value(id.toLower());
            const MessageTexts messages = messagesOfPage(id);
            QStringList keys = messages.keys();
            keys.sort();
            for (const QString& key : keys) {
                if (!anchors.contains(key))
                    m_problems.append(id + QStringLiteral(": a message has no entry: ") + key);
            }
        }
    }

    void checkContents(const QVector<ContentsEntry>& contents)
    {
        QStringList ids;
        takePageIds(contents, &ids);
        for (const QString& id : ids) {
            if (!m_anchors.contains(id))
                m_problems.append(QStringLiteral("contents: no page has the id ") + id);
        }
        for (const HelpPage& page : m_pages) {
            if (ids.count(page.id.toLower()) != 1)
                report(page, ids.contains(page.id.toLower()) ? QStringLiteral("stands in the table of contents twice")
                                                             : QStringLiteral("is missing in the table of contents"));
        }
    }

    const QVector<HelpPage>& m_pages;
    QHash<QString, QSet<QString>> m_anchors; ///< by page id in lower case
    QStringList m_problems;
};

} // namespace

QStringList checkPages(const QVector<HelpPage>& pages, const QVector<ContentsEntry>& contents)
{
    return Check(pages).run(contents);
}

QStringList checkPictures(const QVector<HelpPage>& pages, const QString& pictureDir)
{
    QStringList problems;
    for (const HelpPage& page : pages) {
        for (const QString& picture : page.pictures) {
            if (!QFileInfo(pictureDir + '/' + picture).isFile())
                problems.append(page.id + QStringLiteral(": no picture has the name ") + picture);
        }
    }
    return problems;
}

} // namespace nsHelpBuild
