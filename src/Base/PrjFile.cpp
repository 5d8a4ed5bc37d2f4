#include "PrjFile.h"

#include "CfgStore.h"
#include "SafeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QVector>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstring>

namespace nsModPrj {

namespace {

const QLatin1String rootName("project");
const QLatin1String versionAttribute("version");
const QLatin1String fileVersion("3");
const QLatin1String declaration("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>");

const int maxDtd = 16 * 1024; // characters; no project file needs one

struct Escape
{
    QLatin1String plain;
    QLatin1String escaped;
};

// In the order of escaping: the ampersand first. Unescaping handles it last.
const Escape escapes[] = {
    {QLatin1String("&"), QLatin1String("&amp;")},  {QLatin1String("/"), QLatin1String("&#47;")},
    {QLatin1String("<"), QLatin1String("&#60;")},  {QLatin1String(">"), QLatin1String("&#62;")},
    {QLatin1String("\""), QLatin1String("&#34;")}, {QLatin1String("!"), QLatin1String("&#33;")},
};

/// The text without characters that XML does not allow: one of them would make the whole file unreadable. A reader of
/// XML converts every line end to a line feed; this does the same, so that the text is read back as it was written.
QString cleanText(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            result += c;
            result += text.at(++i);
        } else if (c == QLatin1Char('\r')) {
            result += QLatin1Char('\n');
            if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n'))
                ++i;
        } else if (c == QLatin1Char('\n') || c == QLatin1Char('\t') ||
                   (c.unicode() >= 0x20 && c.unicode() < 0xfffe && !c.isSurrogate())) {
            result += c;
        }
    }
    return result;
}

/// Is this a valid name of an element or attribute? Tries it with the reader that reads the file back.
bool isXmlName(const QString& name)
{
    QXmlStreamReader reader(QLatin1Char('<') + name + QLatin1String("/>"));
    reader.setNamespaceProcessing(false);
    const bool found = reader.readNextStartElement() && reader.qualifiedName() == name && reader.attributes().isEmpty();
    return found && reader.readNext() == QXmlStreamReader::EndElement &&
           reader.readNext() == QXmlStreamReader::EndDocument && !reader.hasError();
}

/// Writes a tree as the text of a project file.
class Formatter
{
public:
    explicit Formatter(QStringList* dropped)
        : m_dropped(dropped)
        , m_text(declaration)
        , m_writer(&m_text)
    {
        m_writer.setCodec("UTF-8");
        m_writer.setAutoFormatting(true);
        m_writer.setAutoFormattingIndent(4);
    }

    QByteArray run(CfgNode* root)
    {
        // The writer ends the line of the declaration.
        m_writer.writeStartElement(rootName);
        m_writer.writeAttribute(versionAttribute, fileVersion);
        m_open.append({root, root->childs(), 0});
        while (!m_open.isEmpty()) {
            Level& level = m_open.last();
            if (level.next < level.childs.size())
                writeNode(level.childs.at(level.next++));
            else
                endLevel();
        }
        m_writer.writeEndDocument();
        return m_nodes <= PrjFile::maxNodes ? m_text.toUtf8() : QByteArray();
    }

private:
    struct Level
    {
        CfgNode* node;
        QList<CfgNode*> childs;
        int next;
    };

    void endLevel()
    {
        m_writer.writeEndElement();
        m_open.removeLast();
    }

    void writeNode(CfgNode* node)
    {
        if (m_open.size() > PrjFile::maxDepth || !isName(node->name())) {
            drop(node->name());
        } else if (++m_nodes > PrjFile::maxNodes) {
            m_open.last().next = m_open.last().childs.size();
        } else if (!node->hasChild()) {
            m_writer.writeTextElement(node->name(), PrjFile::escape(cleanText(node->value())));
        } else {
            m_writer.writeStartElement(node->name());
            writeAttributes(node);
            m_open.append({node, node->childs(), 0});
        }
    }

    void writeAttributes(CfgNode* node)
    {
        const QMap<QString, QString> attributes = node->attributes();
        int count = 0;
        for (auto it = attributes.cbegin(); it != attributes.cend(); ++it) {
            if (isName(it.key()) && ++count <= PrjFile::maxAttributes && ++m_nodes <= PrjFile::maxNodes)
                m_writer.writeAttribute(it.key(), cleanText(it.value()));
            else
                drop(node->name() + QLatin1Char('@') + it.key());
        }
    }

    void drop(const QString& name)
    {
        if (m_dropped == nullptr)
            return;
        QStringList path;
        for (int i = 1; i < m_open.size(); ++i)
            path.append(m_open.at(i).node->name());
        path.append(name);
        m_dropped->append(path.join(QLatin1Char('/')));
    }

    bool isName(const QString& name)
    {
        const auto known = m_names.constFind(name);
        if (known != m_names.cend())
            return known.value();
        const bool result = isXmlName(name);
        m_names.insert(name, result);
        return result;
    }

    QStringList* m_dropped;
    QString m_text;
    QXmlStreamWriter m_writer;
    QVector<Level> m_open;
    QHash<QString, bool> m_names;
    int m_nodes = 0;
};

/// Reads the text of a project file into a tree.
class Parser
{
public:
    Parser(CfgNode* root, const QByteArray& text)
        : m_root(root)
        , m_reader(text)
    {
        // Names are taken as they stand, prefix included: a section with name spaces is written back as it was.
        m_reader.setNamespaceProcessing(false);
    }

    bool run()
    {
        while (!m_reader.atEnd()) {
            const QXmlStreamReader::TokenType token = m_reader.readNext();
            if (token == QXmlStreamReader::StartElement)
                startElement();
            else if (token == QXmlStreamReader::DTD && m_reader.text().size() > maxDtd)
                m_reader.raiseError(QStringLiteral("document type definition too long"));
            else if (token == QXmlStreamReader::EndElement && !m_open.isEmpty())
                m_open.removeLast();
            else if (token == QXmlStreamReader::Characters && !m_open.isEmpty() && !m_reader.isWhitespace())
                m_open.last()->setValue(PrjFile::unescape(m_reader.text().toString()));
        }
        return !m_reader.hasError();
    }

private:
    void startElement()
    {
        if (m_open.isEmpty()) {
            if (m_reader.qualifiedName() != rootName)
                return;
            m_root->setAttribute(versionAttribute, m_reader.attributes().value(versionAttribute).toString());
            m_open.append(m_root);
            return;
        }
        // Attributes count too: a document type definition can add many of them to every element.
        m_nodes += 1 + m_reader.attributes().size();
        if (m_open.size() > PrjFile::maxDepth || m_nodes > PrjFile::maxNodes) {
            m_reader.raiseError(QStringLiteral("too many elements"));
            return;
        }
        CfgNode* child = m_open.last()->addChild(m_reader.qualifiedName().toString());
        for (const QXmlStreamAttribute& attribute : m_reader.attributes())
            child->setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
        m_open.append(child);
    }

    CfgNode* m_root;
    QXmlStreamReader m_reader;
    QVector<CfgNode*> m_open;
    int m_nodes = 0;
};

/// The position after a comment, a CDATA section or a processing instruction that begins at the position; the same
/// position if none begins there.
int skipText(const QByteArray& text, int pos)
{
    static const struct
    {
        QByteArray begin;
        QByteArray end;
    } kinds[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
    for (const auto& kind : kinds) {
        if (qstrncmp(text.constData() + pos, kind.begin.constData(), uint(kind.begin.size())) != 0)
            continue;
        const int end = text.indexOf(kind.end, pos + kind.begin.size());
        return end < 0 ? text.size() : end + kind.end.size();
    }
    return pos;
}

/// Has the tag that begins here more attributes than the limit? *pos goes to its end.
bool isOverlongTag(const QByteArray& text, int* pos)
{
    int count = 0;
    char quote = 0;
    for (++*pos; *pos < text.size(); ++*pos) {
        const char c = text.at(*pos);
        if (quote != 0) {
            if (c == quote)
                quote = 0;
            else if (c == '<') // no attribute value holds this: the reader will end here
                quote = 0, count = 0;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return false;
        } else if (c == '=' && ++count > PrjFile::maxAttributes) {
            return true;
        }
    }
    return false;
}

/// Has any tag more attributes than the limit? The reader compares each attribute of a tag with every other one, which
/// would take hours for a tag with very many of them.
bool hasOverlongTag(const QByteArray& text)
{
    // In the value of an entity, or between the shifts of some encodings, text may look like a comment.
    const bool misleads = text.contains('\x1b') || text.contains("<!DOCTYPE");
    for (int pos = text.indexOf('<'); pos >= 0; pos = text.indexOf('<', pos)) {
        const int next = misleads ? pos : skipText(text, pos);
        if (next != pos)
            pos = next;
        else if (isOverlongTag(text, &pos))
            return true;
    }
    return false;
}

/// The text from its first character on: an XML declaration is not allowed after blank lines, which some editors add.
QByteArray withoutLeadingSpace(const QByteArray& text)
{
    const QByteArray mark("\xEF\xBB\xBF");
    int pos = text.startsWith(mark) ? mark.size() : 0;
    while (pos < text.size() && std::strchr(" \t\r\n", text.at(pos)) != nullptr && text.at(pos) != 0)
        ++pos;
    return text.mid(pos);
}

bool fail(QString* error, const QString& message)
{
    if (error != nullptr)
        *error = message;
    return false;
}

} // namespace

QString PrjFile::escape(QString value)
{
    for (const Escape& e : escapes)
        value.replace(e.plain, e.escaped);
    return value;
}

QString PrjFile::unescape(QString text)
{
    for (const Escape& e : escapes) {
        if (&e != &escapes[0])
            text.replace(e.escaped, e.plain);
    }
    return text.replace(escapes[0].escaped, escapes[0].plain);
}

QByteArray PrjFile::format(CfgStore* tree, QStringList* dropped)
{
    return Formatter(dropped).run(tree->getNode(QStringList()));
}

bool PrjFile::parse(CfgStore* tree, const QByteArray& text)
{
    const QByteArray content = withoutLeadingSpace(text);
    // A project file is UTF-8, which has no NUL; encodings of wide characters would hide tags from the check.
    return !content.contains('\0') && !hasOverlongTag(content) && Parser(tree->getNode(QStringList()), content).run();
}

bool PrjFile::read(CfgStore* tree, const QString& path, QString* error)
{
    if (path.isEmpty())
        return fail(error, tr("No project file set."));
    const QFileInfo info(path);
    if (!info.exists())
        return fail(error, tr("Project file does not exist: ") + path);
    // Checked before the file is opened: opening a pipe would wait for its writer.
    if (!info.isFile())
        return fail(error, tr("Project file is no valid file: ") + path);
    if (!info.isReadable())
        return fail(error, tr("Project file is not readable: ") + path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return fail(error, tr("Can not open project file: ") + path);
    if (file.size() > maxBytes)
        return fail(error, tr("Project file is too large: ") + path);
    const QByteArray text = file.read(maxBytes + 1);
    if (file.error() != QFileDevice::NoError)
        return fail(error, tr("Can not open project file: ") + path);
    file.close();
    if (!parse(tree, text))
        return fail(error, tr("Project file not XML conform!") + path);
    return true;
}

bool PrjFile::write(CfgStore* tree, const QString& path, QStringList* dropped, QString* error, QString* reason)
{
    const QFileInfo info(path);
    if (info.isDir())
        return fail(error, tr("Project file is directory: ") + path);
    // Replacing a device or a pipe by a file would destroy it.
    if (info.exists() && !info.isFile())
        return fail(error, tr("Project file is no valid file: ") + path);
    if (info.exists() && !info.isWritable())
        return fail(error, tr("Project file is not writable: ") + path);
    const QByteArray text = format(tree, dropped);
    if (text.isEmpty() || text.size() > maxBytes)
        return fail(error, tr("Can not write project file: ") + path);
    SafeFile file(path);
    const bool opened = file.open();
    if (opened && file.write(text) == text.size() && file.commit())
        return true;
    if (reason != nullptr)
        *reason = file.errorString();
    return fail(error, (opened ? tr("Can not write project file: ") : tr("Can not open project file: ")) + path);
}

} // namespace nsModPrj
