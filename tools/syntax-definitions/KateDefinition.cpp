#include "KateDefinition.h"

#include "Grammar.h"

#include <QXmlStreamWriter>

#include <cstring>

namespace nsSyntax {

namespace {

/// Writes the definition from its start to its end.
class KateWriter
{
public:
    explicit KateWriter(const Grammar& grammar, QByteArray* result)
        : m_grammar(grammar)
        , m_xml(result)
    {
        m_xml.setAutoFormatting(true);
    }

    void write()
    {
        m_xml.writeStartDocument();
        m_xml.writeDTD("<!DOCTYPE language>");
        m_xml.writeStartElement("language");
        m_xml.writeAttribute("name", languageTitle);
        m_xml.writeAttribute("version", "1");
        m_xml.writeAttribute("kateversion", "5.0");
        m_xml.writeAttribute("section", "Assembler");
        m_xml.writeAttribute("extensions", sourcePattern);
        m_xml.writeAttribute("license", "MIT");
        m_xml.writeStartElement("highlighting");
        writeLists();
        writeContexts();
        writeStyles();
        m_xml.writeEndElement();
        writeGeneral();
        m_xml.writeEndElement();
        m_xml.writeEndDocument();
    }

private:
    /// Kate offers these words for completion.
    void writeLists()
    {
        for (const sRule_t& rule : m_grammar.rules()) {
            if (rule.words.isEmpty())
                continue;
            m_xml.writeStartElement("list");
            m_xml.writeAttribute("name", rule.name);
            for (const QString& word : rule.words)
                m_xml.writeTextElement("item", word);
            m_xml.writeEndElement();
        }
    }
    void writeContexts()
    {
        m_xml.writeStartElement("contexts");
        startContext("Code", "Normal Text", "#stay");
        writeRules(placeCode);
        m_xml.writeEndElement();
        for (const sRule_t& rule : m_grammar.rules()) {
            if (!reachesLineEnd(rule))
                continue;
            startContext(rule.name, styleOf(rule.kind).title, "#pop");
            writeRules(placeComment);
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
    }
    void startContext(const QString& name, const QString& style, const QString& lineEnd)
    {
        m_xml.writeStartElement("context");
        m_xml.writeAttribute("name", name);
        m_xml.writeAttribute("attribute", style);
        m_xml.writeAttribute("lineEndContext", lineEnd);
    }
    void writeRules(ePlace_t place)
    {
        for (const sRule_t& rule : m_grammar.rules()) {
            if (rule.place == place)
                writeRule(rule);
        }
    }
    void writeRule(const sRule_t& rule)
    {
        const bool isComment = reachesLineEnd(rule);
        m_xml.writeStartElement(rule.words.isEmpty() ? "RegExpr" : "keyword");
        m_xml.writeAttribute("attribute", styleOf(rule.kind).title);
        m_xml.writeAttribute("context", isComment ? rule.name : QStringLiteral("#stay"));
        m_xml.writeAttribute("String", !rule.words.isEmpty() ? rule.name
                                       : isComment           ? rule.expression.chopped(int(strlen(".*")))
                                                             : rule.expression);
        if (rule.cs == Qt::CaseInsensitive)
            m_xml.writeAttribute("insensitive", "true");
        if (rule.expression.startsWith('^'))
            m_xml.writeAttribute("column", "0");
        if (*rule.fold.ends != '\0')
            m_xml.writeAttribute("endRegion", rule.fold.ends);
        if (*rule.fold.begins != '\0')
            m_xml.writeAttribute("beginRegion", rule.fold.begins);
        m_xml.writeEndElement();
    }
    void writeStyles()
    {
        m_xml.writeStartElement("itemDatas");
        writeStyle("Normal Text", "dsNormal");
        for (const sStyle_t& style : styles())
            writeStyle(style.title, style.kate);
        m_xml.writeEndElement();
    }
    void writeStyle(const char* title, const char* style)
    {
        m_xml.writeStartElement("itemData");
        m_xml.writeAttribute("name", title);
        m_xml.writeAttribute("defStyleNum", style);
        m_xml.writeEndElement();
    }
    void writeGeneral()
    {
        m_xml.writeStartElement("general");
        m_xml.writeStartElement("comments");
        m_xml.writeStartElement("comment");
        m_xml.writeAttribute("name", "singleLine");
        m_xml.writeAttribute("start", ";");
        m_xml.writeEndElement();
        m_xml.writeEndElement();
        m_xml.writeStartElement("keywords");
        m_xml.writeAttribute("casesensitive", "1");
        // Where a word ends, besides the usual characters.
        m_xml.writeAttribute("additionalDeliminator", "'\"#@$`");
        m_xml.writeEndElement();
        m_xml.writeEndElement();
    }

    const Grammar& m_grammar;
    QXmlStreamWriter m_xml;
};

} // namespace

QByteArray kateDefinition(const Grammar& grammar)
{
    QByteArray result;
    KateWriter(grammar, &result).write();
    return result;
}

} // namespace nsSyntax
