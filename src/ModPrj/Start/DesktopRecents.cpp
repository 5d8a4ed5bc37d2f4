#include "DesktopRecents.h"

#include "Display.h"
#include "SafeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>
#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>

namespace nsModPrj {

namespace {

const int lockTimeout = 100; // ms; a program writes the list in much less
const int maxTries = 3;

const QString bookmarkSpace = QStringLiteral("http://www.freedesktop.org/standards/desktop-bookmarks");
const QString mimeSpace = QStringLiteral("http://www.freedesktop.org/standards/shared-mime-info");
const QString applicationName = QStringLiteral("Nalvo");

const char* const emptyList = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                              "<xbel version=\"1.0\"\n"
                              "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
                              "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"\n"
                              ">\n"
                              "</xbel>";

struct sSpan_t
{
    int begin = -1; ///< -1: there is none
    int end = -1;
};

/// Where the parts are that an entry of the project consists of, as places in the text of the list.
struct sPlaces_t
{
    sSpan_t entryTag;      ///< the start tag of the entry
    sSpan_t application;   ///< what the entry says of this program
    int applications = -1; ///< the end tag of the programs of the entry
    int end = -1;          ///< the end tag of the list
    int count = 0;         ///< how often this program has used the file
};

/// Finds the tags in a text that is well-formed XML without a document type.
class TagFinder
{
public:
    struct sTag_t
    {
        int begin;
        int end;
        bool isEmptyElement;
    };

    explicit TagFinder(const QString& text)
        : m_text(text)
    {
    }

    /// The next tag. Comments, sections of characters and instructions are none.
    sTag_t next()
    {
        for (;;) {
            const int begin = m_text.indexOf(QLatin1Char('<'), m_pos);
            if (begin < 0)
                return {-1, -1, false};
            if (skip(begin, "<!--", "-->") || skip(begin, "<![CDATA[", "]]>") || skip(begin, "<?", "?>"))
                continue;
            m_pos = endOfTag(begin);
            return {begin, m_pos, m_text.midRef(begin, m_pos - begin).endsWith(QLatin1String("/>"))};
        }
    }

private:
    bool skip(int begin, const char* first, const char* last)
    {
        if (!m_text.midRef(begin).startsWith(QLatin1String(first)))
            return false;
        const int end = m_text.indexOf(QLatin1String(last), begin + int(qstrlen(first)));
        m_pos = end < 0 ? m_text.size() : end + int(qstrlen(last));
        return true;
    }

    /// A value in quotes may hold what ends a tag.
    int endOfTag(int begin) const
    {
        QChar quote;
        for (int i = begin; i < m_text.size(); ++i) {
            const QChar c = m_text.at(i);
            if (!quote.isNull())
                quote = c == quote ? QChar() : quote;
            else if (c == QLatin1Char('"') || c == QLatin1Char('\''))
                quote = c;
            else if (c == QLatin1Char('>'))
                return i + 1;
        }
        return m_text.size();
    }

    const QString& m_text;
    int m_pos = 0;
};

/// Walks over a list and finds the places.
class ListReader
{
public:
    ListReader(const QString& text, const QString& project)
        : m_text(text)
        , m_reader(text)
        , m_tags(text)
        , m_project(project)
    {
    }

    /// @return false if the text is no list that can be extended
    bool run()
    {
        while (!m_reader.atEnd()) {
            const QXmlStreamReader::TokenType token = m_reader.readNext();
            if (token == QXmlStreamReader::DTD)
                return false;
            if (token == QXmlStreamReader::StartElement) {
                m_tag = m_tags.next();
                if (!startElement())
                    return false;
            } else if (token == QXmlStreamReader::EndElement) {
                // An empty element ends with the tag that it begins with.
                if (!m_tag.isEmptyElement)
                    m_tag = m_tags.next();
                endElement();
                m_tag.isEmptyElement = false;
            }
        }
        return !m_reader.hasError() && isTag(m_places.end, "</xbel") && areWhole();
    }

    const sPlaces_t& places() const { return m_places; }

private:
    bool startElement()
    {
        ++m_depth;
        if (m_depth == 1)
            return isList();
        if (m_depth == 2)
            m_inEntry = m_places.entryTag.begin < 0 && m_reader.name() == QLatin1String("bookmark") && isProject();
        if (!m_inEntry)
            return true;
        if (m_depth == 2)
            m_places.entryTag = {m_tag.begin, m_tag.end};
        else if (isElement("application") && isThisProgram())
            m_places.application.begin = m_tag.begin;
        return true;
    }

    void endElement()
    {
        if (m_depth == 1)
            m_places.end = m_tag.begin;
        if (m_inEntry && isElement("applications"))
            m_places.applications = m_tag.begin;
        if (m_inEntry && isElement("application") && m_places.application.begin >= 0 && m_places.application.end < 0)
            m_places.application.end = m_tag.end;
        if (m_depth == 2)
            m_inEntry = false;
        --m_depth;
    }

    /// The names of the parts have these prefixes in the lists of all desktops.
    bool isList() const
    {
        if (m_reader.qualifiedName() != QLatin1String("xbel"))
            return false;
        int known = 0;
        for (const QXmlStreamNamespaceDeclaration& one : m_reader.namespaceDeclarations()) {
            known += int(one.prefix() == QLatin1String("bookmark") && one.namespaceUri() == bookmarkSpace);
            known += int(one.prefix() == QLatin1String("mime") && one.namespaceUri() == mimeSpace);
        }
        return known == 2;
    }

    bool isProject() const
    {
        const QByteArray href = m_reader.attributes().value(QLatin1String("href")).toUtf8();
        return QUrl::fromEncoded(href).toLocalFile() == m_project;
    }

    bool isElement(const char* name) const
    {
        return m_reader.namespaceUri() == bookmarkSpace && m_reader.name() == QLatin1String(name);
    }

    bool isThisProgram()
    {
        if (m_reader.attributes().value(QLatin1String("name")) != applicationName || m_places.application.begin >= 0)
            return false;
        m_places.count = std::max(0, m_reader.attributes().value(QLatin1String("count")).toInt());
        return true;
    }

    bool isTag(int begin, const char* text) const
    {
        return begin >= 0 && m_text.midRef(begin).startsWith(QLatin1String(text));
    }

    /// Do the places that were found begin with what they should? An entry without a place for programs can not be
    /// extended.
    bool areWhole() const
    {
        if (m_places.entryTag.begin < 0)
            return true;
        const sSpan_t& own = m_places.application;
        return isTag(m_places.entryTag.begin, "<bookmark") && isTag(m_places.applications, "</bookmark:applications") &&
               (own.begin < 0 || (isTag(own.begin, "<bookmark:application") && own.end > own.begin));
    }

    const QString& m_text;
    QXmlStreamReader m_reader;
    TagFinder m_tags;
    const QString m_project;
    sPlaces_t m_places;
    TagFinder::sTag_t m_tag = {-1, -1, false}; ///< of the present element
    int m_depth = 0;
    bool m_inEntry = false;
};

QString applicationElement(const QString& time, int count)
{
    return QStringLiteral(
               "<bookmark:application name=\"%1\" exec=\"&apos;nalvo %f&apos;\" modified=\"%2\" count=\"%3\"/>")
        .arg(applicationName, time)
        .arg(count);
}

QString entryElement(const QString& project, const QString& time)
{
    const QString href = QString::fromLatin1(QUrl::fromLocalFile(project).toEncoded()).toHtmlEscaped();
    return QStringLiteral("  <bookmark href=\"%1\" added=\"%2\" modified=\"%2\" visited=\"%2\">\n"
                          "    <info>\n"
                          "      <metadata owner=\"http://freedesktop.org\">\n"
                          "        <mime:mime-type type=\"application/x-nalvo-project\"/>\n"
                          "        <bookmark:applications>\n"
                          "          ")
               .arg(href, time) +
           applicationElement(time, 1) +
           QStringLiteral("\n"
                          "        </bookmark:applications>\n"
                          "      </metadata>\n"
                          "    </info>\n"
                          "  </bookmark>\n");
}

/// The start tag of an entry with another time in its attributes "modified" and "visited".
QString withTime(QString tag, const QString& time)
{
    static const QRegularExpression value("(\\s(?:modified|visited)\\s*=\\s*)(?:\"[^\"]*\"|'[^']*')");
    return tag.replace(value, "\\1\"" + time + '"');
}

/// The content of the list; false if it is there and can not be read.
bool read(const QString& path, QByteArray* content)
{
    QFile file(path);
    content->clear();
    if (!file.exists())
        return true;
    if (file.size() > DesktopRecents::maxBytes || !file.open(QIODevice::ReadOnly))
        return false;
    *content = file.read(DesktopRecents::maxBytes + 1);
    return content->size() <= DesktopRecents::maxBytes && file.error() == QFileDevice::NoError;
}

} // namespace

bool DesktopRecents::s_everywhere = false;

QString DesktopRecents::listFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/recently-used.xbel");
}

bool DesktopRecents::add(const QString& project)
{
    return (s_everywhere || Display::isThere()) && addTo(listFile(), project, QDateTime::currentDateTimeUtc());
}

bool DesktopRecents::addTo(const QString& list, const QString& project, const QDateTime& now)
{
    const QFileInfo info(list);
    // A link that leads nowhere is no place for a list.
    if (!QFileInfo(info.path()).isDir() || (info.isSymLink() && !info.exists()) ||
        (info.exists() && (!info.isFile() || !info.isWritable())))
        return false;
    // Other programs take the same lock.
    QLockFile lock(list + QStringLiteral(".lock"));
    if (!lock.tryLock(lockTimeout))
        return false;
    // Some programs write without the lock, so the list is looked at again before it is replaced.
    for (int i = 0; i < maxTries; ++i) {
        QByteArray old;
        QByteArray present;
        if (!read(list, &old))
            return false;
        const QByteArray next = added(old, project, now);
        if (next.isNull() || !read(list, &present))
            return false;
        if (present == old)
            return SafeFile::replace(list, next, nullptr,
                                     info.exists() ? SafeFile::eRightsKept : SafeFile::eRightsOwner);
    }
    return false;
}

QByteArray DesktopRecents::added(const QByteArray& list, const QString& project, const QDateTime& now)
{
    QString text = QString::fromUtf8(list.isEmpty() ? QByteArray(emptyList) : list);
    const QString time = now.toUTC().toString(Qt::ISODate);
    ListReader reader(text, project);
    // Bytes that are no UTF-8 would not come back.
    if ((!list.isEmpty() && text.toUtf8() != list) || !reader.run())
        return QByteArray();
    const sPlaces_t& places = reader.places();
    if (places.entryTag.begin < 0) {
        text.insert(places.end, entryElement(project, time));
    } else {
        // The last place first, so that the others stay where they are.
        const QString own = applicationElement(time, places.count < 1000000000 ? places.count + 1 : 1);
        if (places.application.begin < 0)
            text.insert(places.applications, own);
        else
            text.replace(places.application.begin, places.application.end - places.application.begin, own);
        const sSpan_t& tag = places.entryTag;
        const QString newTag = withTime(text.mid(tag.begin, tag.end - tag.begin), time);
        text.replace(tag.begin, tag.end - tag.begin, newTag);
    }
    ListReader check(text, project);
    return check.run() && check.places().application.begin >= 0 ? text.toUtf8() : QByteArray();
}

} // namespace nsModPrj
