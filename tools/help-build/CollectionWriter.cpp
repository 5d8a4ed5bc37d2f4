#include "CollectionWriter.h"

#include "MessageEntries.h"

#include <QHash>
#include <QXmlStreamWriter>

namespace nsHelpBuild {

namespace {

// The program's URLs name the namespace, and the host of a URL is in lower case.
const char* const helpNamespace = "nv";
const char* const virtualFolder = "Nalvo";
const char* const pageTable = "pageIdRefList/pageIdRefList.csv";
const QString styleSheet = QStringLiteral("style.css");

using PagesById = QHash<QString, const HelpPage*>;

void writeContents(QXmlStreamWriter* xml, const QVector<ContentsEntry>& contents, const PagesById& pages)
{
    for (const ContentsEntry& entry : contents) {
        const HelpPage* page = pages.value(entry.pageId.toLower());
        xml->writeStartElement("section");
        xml->writeAttribute("title", page != nullptr ? page->title : entry.title);
        if (page != nullptr)
            xml->writeAttribute("ref", page->file());
        writeContents(xml, entry.entries, pages);
        xml->writeEndElement();
    }
}

/// @param id of its own: of several keywords with one id, the collection would keep the first alone
void writeKeyword(QXmlStreamWriter* xml, const QString& name, const QString& id, const QString& ref)
{
    xml->writeEmptyElement("keyword");
    xml->writeAttribute("name", name);
    xml->writeAttribute("id", id);
    xml->writeAttribute("ref", ref);
}

void writeKeywords(QXmlStreamWriter* xml, const QVector<HelpPage>& pages)
{
    for (const HelpPage& page : pages) {
        writeKeyword(xml, page.title, page.id, page.file());
        for (const QString& keyword : page.keywords)
            writeKeyword(xml, keyword, page.id + '/' + keyword, page.file());
        for (const HelpAnchor& anchor : page.anchors) {
            if (anchor.isWord)
                writeKeyword(xml, anchor.title, page.id + '#' + anchor.name, page.file() + '#' + anchor.name);
        }
    }
}

} // namespace

QByteArray CollectionWriter::htmlOf(const HelpPage& page)
{
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
           page.title.toHtmlEscaped().toUtf8() +
           "</title>\n<link rel=\"stylesheet\" href=\"style.css\">\n</head>\n<body>\n<main>\n<h1>" +
           page.title.toHtmlEscaped().toUtf8() + "</h1>\n" + page.html + "</main>\n</body>\n</html>\n";
}

QByteArray CollectionWriter::project(const HelpSources& help, const QStringList& otherFiles)
{
    PagesById byId;
    for (const HelpPage& page : help.pages())
        byId.insert(page.id.toLower(), &page);
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement("QtHelpProject");
    xml.writeAttribute("version", "1.0");
    xml.writeTextElement("namespace", helpNamespace);
    xml.writeTextElement("virtualFolder", virtualFolder);
    xml.writeStartElement("filterSection");
    xml.writeStartElement("toc");
    writeContents(&xml, help.contents(), byId);
    xml.writeEndElement();
    xml.writeStartElement("keywords");
    writeKeywords(&xml, help.pages());
    xml.writeEndElement();
    xml.writeStartElement("files");
    for (const HelpPage& page : help.pages())
        xml.writeTextElement("file", page.file());
    for (const QString& file : otherFiles)
        xml.writeTextElement("file", file);
    xml.writeTextElement("file", pageTable);
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
    return text;
}

bool CollectionWriter::write(const HelpSources& help, const QStringList& pictures)
{
    QByteArray table;
    for (const HelpPage& page : help.pages()) {
        table += page.id.toLower().toUtf8() + ';' + page.file().toUtf8() + ";\n";
        if (!m_out.write(page.file(), htmlOf(page)))
            return false;
    }
    static const QByteArray collection =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<QHelpCollectionProject version=\"1.0\">\n"
        "<docFiles>\n"
        "<generate><file><input>nalvo.qhp</input><output>nalvo.qch</output></file></generate>\n"
        "<register><file>nalvo.qch</file></register>\n"
        "</docFiles>\n"
        "</QHelpCollectionProject>\n";
    const QStringList otherFiles = QStringList(styleSheet) + pictures;
    return m_out.copy(help.folder() + '/' + styleSheet, styleSheet) && m_out.write(pageTable, table) &&
           m_out.write(QStringLiteral("messages.txt"), messageEntries(help.pages())) &&
           m_out.write(QStringLiteral("nalvo.qhp"), project(help, otherFiles)) &&
           m_out.write(QStringLiteral("hlpCollection.qhcp"), collection);
}

} // namespace nsHelpBuild
