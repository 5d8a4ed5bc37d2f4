#include "AsmProject.h"

#include <QXmlStreamWriter>

namespace {

const QString target = QStringLiteral("AsmFe/target/");

QString listText(QStringList list)
{
    for (QString& item : list)
        item.replace("&", "&amp;").replace(":", "&#58;");
    return list.join(':');
}

QString escaped(QString value)
{
    return value.replace("&", "&amp;")
        .replace("/", "&#47;")
        .replace("<", "&#60;")
        .replace(">", "&#62;")
        .replace("\"", "&#34;")
        .replace("!", "&#33;");
}

} // namespace

AsmProject::AsmProject()
{
    settings["PrjInfo/title"] = "Test";
    settings["AsmFe/behavior/charset"] = "2";
    // Without these, every run warns about kinds of files that no device has.
    for (const char* kind : {"vhdl", "verilog", "hex", "mem"}) {
        for (const char* event : {"But1", "But2", "Save"})
            settings[target + kind + "/writeFileEvent" + event] = "0";
    }
}

AsmProject& AsmProject::output(const QString& kind, const QString& file, const QString& event)
{
    settings[target + kind + "/en"] = "1";
    settings[target + kind + "/outputFile"] = file;
    settings[target + kind + "/writeFileEvent" + event] = "1";
    return *this;
}

AsmProject& AsmProject::vhdl(const QString& templateFile, const QString& file)
{
    settings[target + "vhdl/entityName"] = "rom";
    settings[target + "vhdl/templateFile"] = templateFile;
    return output("vhdl", file);
}

QByteArray AsmProject::text() const
{
    QMap<QString, QString> all = settings;
    all["sources/srcFiles"] = listText(sources);
    all["ModProcessor/processor"] = processor;
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    writer.setAutoFormatting(true);
    writer.writeStartDocument("1.0", true);
    writer.writeStartElement("project");
    writer.writeAttribute("version", "3");
    QStringList open;
    // The keys come sorted, so what belongs to one element stands together.
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        QStringList path = it.key().split('/');
        const QString name = path.takeLast();
        int same = 0;
        while (same < open.size() && same < path.size() && open.at(same) == path.at(same))
            ++same;
        for (; open.size() > same; open.removeLast())
            writer.writeEndElement();
        for (; open.size() < path.size(); open.append(path.at(open.size())))
            writer.writeStartElement(path.at(open.size()));
        writer.writeTextElement(name, escaped(it.value()));
    }
    writer.writeEndDocument();
    return xml;
}
