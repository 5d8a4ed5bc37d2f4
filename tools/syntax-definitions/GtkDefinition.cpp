#include "GtkDefinition.h"

#include "Grammar.h"

#include <QXmlStreamWriter>

#include <cstring>

namespace nsSyntax {

namespace {

/// Writes the definition from its start to its end.
class GtkWriter
{
public:
    explicit GtkWriter(const Grammar& grammar, QByteArray* result)
        : m_grammar(grammar)
        , m_xml(result)
    {
        m_xml.setAutoFormatting(true);
    }

    void write()
    {
        m_xml.writeStartDocument();
        m_xml.writeStartElement("language");
        m_xml.writeAttribute("id", languageId);
        m_xml.writeAttribute("name", languageTitle);
        m_xml.writeAttribute("version", "2.0");
        m_xml.writeAttribute("section", "Source");
        m_xml.writeStartElement("metadata");
        writeProperty("globs", sourcePattern);
        writeProperty("line-comment-start", ";");
        m_xml.writeEndElement();
        writeStyles();
        m_xml.writeStartElement("definitions");
        for (const sRule_t& rule : m_grammar.rules())
            writeRule(rule);
        m_xml.writeStartElement("context");
        m_xml.writeAttribute("id", languageId);
        writeIncludes(placeCode);
        m_xml.writeEndElement();
        m_xml.writeEndElement();
        m_xml.writeEndElement();
        m_xml.writeEndDocument();
    }

private:
    void writeProperty(const char* name, const char* value)
    {
        m_xml.writeStartElement("property");
        m_xml.writeAttribute("name", name);
        m_xml.writeCharacters(value);
        m_xml.writeEndElement();
    }
    void writeStyles()
    {
        m_xml.writeStartElement("styles");
        for (const sStyle_t& style : styles()) {
            m_xml.writeStartElement("style");
            m_xml.writeAttribute("id", style.id);
            m_xml.writeAttribute("name", style.title);
            m_xml.writeAttribute("map-to", style.gtk);
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
    }
    void writeRule(const sRule_t& rule)
    {
        const QString expression =
            rule.cs == Qt::CaseInsensitive ? "(?i:" + rule.expression + ")" : "(?:" + rule.expression + ")";
        m_xml.writeStartElement("context");
        m_xml.writeAttribute("id", rule.name);
        m_xml.writeAttribute("style-ref", styleOf(rule.kind).id);
        if (reachesLineEnd(rule)) {
            m_xml.writeAttribute("end-at-line-end", "true");
            m_xml.writeAttribute("class", "comment");
            m_xml.writeAttribute("class-disabled", "no-spell-check");
            m_xml.writeTextElement("start", rule.expression.chopped(int(strlen(".*"))));
            writeIncludes(placeComment);
        } else {
            if (rule.kind == nsModAsmFe::highlightString) {
                m_xml.writeAttribute("class", "string");
                m_xml.writeAttribute("class-disabled", "no-spell-check");
            }
            m_xml.writeTextElement("match", expression);
        }
        m_xml.writeEndElement();
    }
    void writeIncludes(ePlace_t place)
    {
        m_xml.writeStartElement("include");
        for (const sRule_t& rule : m_grammar.rules()) {
            if (rule.place != place)
                continue;
            m_xml.writeStartElement("context");
            m_xml.writeAttribute("ref", rule.name);
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
    }

    const Grammar& m_grammar;
    QXmlStreamWriter m_xml;
};

} // namespace

QByteArray gtkDefinition(const Grammar& grammar)
{
    QByteArray result;
    GtkWriter(grammar, &result).write();
    return result;
}

} // namespace nsSyntax
