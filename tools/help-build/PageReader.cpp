#include "PageReader.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace nsHelpBuild {

bool HeadedText::read(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = path + QStringLiteral(": ") + file.errorString();
        return false;
    }
    int& number = headLines;
    number = 0;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        ++number;
        if (line == QLatin1String("---")) {
            body = file.readAll();
            return true;
        }
        const int colon = line.indexOf(':');
        if (colon <= 0) {
            *error = QStringLiteral("%1:%2: expected \"key: value\" or \"---\"").arg(path).arg(number);
            return false;
        }
        head.insert(line.left(colon).trimmed(), line.mid(colon + 1).trimmed());
    }
    *error = path + QStringLiteral(": the head has no end \"---\"");
    return false;
}

bool readPage(const QString& path, HelpPage* page, QString* error)
{
    HeadedText text;
    if (!text.read(path, error))
        return false;
    page->source = path;
    page->id = text.head.value(QStringLiteral("id"));
    page->title = text.head.value(QStringLiteral("title"));
    page->markdown = text.body;
    page->headLines = text.headLines;
    for (const QString& keyword : text.head.value(QStringLiteral("keywords")).split(',')) {
        if (!keyword.trimmed().isEmpty())
            page->keywords.append(keyword.trimmed());
    }
    static const QRegularExpression word(QStringLiteral("^[A-Za-z][A-Za-z0-9]*$"));
    if (!word.match(page->id).hasMatch())
        *error = path + QStringLiteral(": the id is missing or is no word: \"%1\"").arg(page->id);
    else if (page->title.isEmpty())
        *error = path + QStringLiteral(": the title is missing");
    else
        return true;
    return false;
}

QVector<HelpPage> readPages(const QString& folder, QStringList* errors)
{
    QStringList paths;
    QDirIterator it(folder, {QStringLiteral("*.md")}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        paths.append(it.next());
    paths.sort();
    QVector<HelpPage> pages;
    QSet<QString> ids;
    for (const QString& path : qAsConst(paths)) {
        HelpPage page;
        QString error;
        if (!readPage(path, &page, &error)) {
            errors->append(error);
        } else if (ids.contains(page.id.toLower())) {
            errors->append(path + QStringLiteral(": another page has the id ") + page.id);
        } else {
            ids.insert(page.id.toLower());
            pages.append(page);
        }
    }
    return pages;
}

} // namespace nsHelpBuild
