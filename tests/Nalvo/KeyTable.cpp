// Every key that the program stores, with its type and its default. A module that stores one more adds its row here.

#include "KeyTable.h"

#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

const KeyTable& settingsKeys()
{
    static const KeyTable keys = {
        {"ModGui/width", "int", "800", "1000"},
        {"ModGui/height", "int", "600", "700"},
        {"ModGui/x", "int", "0", "40"},
        {"ModGui/y", "int", "0", "30"},
        {"ModGui/colorScheme", "int", "0", "1"},
        {"ModEditor/tabIndent", "int", "4", "7"},
        {"ModEditor/dynamicLineWrapEn", "bool", "0", "1"},
        {"ModEditor/lineNumberEn", "bool", "1", "0"},
        {"ModEditor/autoReturnIndentEn", "bool", "1", "0"},
        {"ModEditor/textCompletionEn", "bool", "1", "0"},
        {"ModEditor/textCompleterPrefixLength", "int", "3", "5"},
        {"ModEditor/textCompleterItemCount", "int", "10", "12"},
        {"ModEditor/highlightSelectionEn", "bool", "1", "0"},
        {"ModEditor/reloadKeepsUndo", "bool", "0", "1"},
        {"ModEditor/indentWithBlanks", "bool", "0", "1"},
        {"ModEditor/smartHomeEn", "bool", "0", "1"},
        {"ModEditor/trimOnSaveEn", "bool", "0", "1"},
        {"ModEditor/showBlanksEn", "bool", "0", "1"},
        {"ModEditor/rulerColumn", "int", "0", "80"},
        {"ModEditor/marksFollowTextEn", "bool", "0", "1"},
        {"ModEditor/keepMarksEn", "bool", "0", "1"},
        {"ModEditor/memPageAddrEn", "int", "2", "1"},
        {"ModEditor/cursorBgColor", "color", "#e3ebf3", "#112335"},
        {"ModEditor/highlightBgColor", "color", "#f5caca", "#12263a"},
        {"ModEditor/leftMarginBgColor", "color", "#eae9e8", "#13293f"},
        {"ModEditor/leftMarginFgColor", "color", "#000000", "#142c44"},
        {"ModEditor/simBreakpointSymbolColor", "color", "#ff0000", "#152f49"},
        {"ModEditor/simStartAddressSymbolColor", "color", "#00ff00", "#16324e"},
        {"ModEditor/bookmarkSymbolColor", "color", "#808000", "#173553"},
        {"ModEditor/stdFont", "font", "DejaVu Sans Mono,9,-1,7,50,0,0,0,0,0", "DejaVu Sans Mono,12,-1,7,75,1,0,0,0,0"},
        {"ModEditor/font/cmd/weight", "int", "75", "50"},
        {"ModEditor/font/cmd/italic", "bool", "0", "1"},
        {"ModEditor/font/cmd/color", "color", "#000000", "#183858"},
        {"ModEditor/font/directive/weight", "int", "75", "50"},
        {"ModEditor/font/directive/italic", "bool", "0", "1"},
        {"ModEditor/font/directive/color", "color", "#008000", "#193b5d"},
        {"ModEditor/font/hw/weight", "int", "75", "50"},
        {"ModEditor/font/hw/italic", "bool", "0", "1"},
        {"ModEditor/font/hw/color", "color", "#000080", "#1a3e62"},
        {"ModEditor/font/hexNumber/weight", "int", "75", "50"},
        {"ModEditor/font/hexNumber/italic", "bool", "0", "1"},
        {"ModEditor/font/hexNumber/color", "color", "#800080", "#1b4167"},
        {"ModEditor/font/decNumber/weight", "int", "75", "50"},
        {"ModEditor/font/decNumber/italic", "bool", "0", "1"},
        {"ModEditor/font/decNumber/color", "color", "#0000ff", "#1c446c"},
        {"ModEditor/font/octNumber/weight", "int", "75", "50"},
        {"ModEditor/font/octNumber/italic", "bool", "0", "1"},
        {"ModEditor/font/octNumber/color", "color", "#808000", "#1d4771"},
        {"ModEditor/font/binNumber/weight", "int", "75", "50"},
        {"ModEditor/font/binNumber/italic", "bool", "0", "1"},
        {"ModEditor/font/binNumber/color", "color", "#f56d05", "#1e4a76"},
        {"ModEditor/font/comment/weight", "int", "50", "75"},
        {"ModEditor/font/comment/italic", "bool", "0", "1"},
        {"ModEditor/font/comment/color", "color", "#808080", "#1f4d7b"},
        {"ModEditor/font/separator/weight", "int", "50", "75"},
        {"ModEditor/font/separator/italic", "bool", "0", "1"},
        {"ModEditor/font/separator/color", "color", "#800000", "#205080"},
        {"ModEditor/font/label/weight", "int", "75", "50"},
        {"ModEditor/font/label/italic", "bool", "0", "1"},
        {"ModEditor/font/label/color", "color", "#000000", "#215385"},
        {"ModEditor/font/doc/weight", "int", "50", "75"},
        {"ModEditor/font/doc/italic", "bool", "0", "1"},
        {"ModEditor/font/doc/color", "color", "#800000", "#22568a"},
        {"ModEditor/font/naviCmd/weight", "int", "75", "50"},
        {"ModEditor/font/naviCmd/italic", "bool", "0", "1"},
        {"ModEditor/font/naviCmd/color", "color", "#808080", "#23598f"},
        {"ModEditor/font/attr/weight", "int", "50", "75"},
        {"ModEditor/font/attr/italic", "bool", "0", "1"},
        {"ModEditor/font/attr/color", "color", "#c18a46", "#245c94"},
        {"ModEditor/font/string/weight", "int", "50", "75"},
        {"ModEditor/font/string/italic", "bool", "0", "1"},
        {"ModEditor/font/string/color", "color", "#800000", "#255f99"},
        {"ModEditor/font/keyWords/weight", "int", "75", "50"},
        {"ModEditor/font/keyWords/italic", "bool", "0", "1"},
        {"ModEditor/font/keyWords/color", "color", "#000000", "#26629e"},
        {"ModSymbols/completionEn", "bool", "0", "1"},
        {"ModHlp/hlpIndexSideRight", "int", "2", "0"},
        {"ModHlp/showGettingStarted", "bool", "1", "0"},
        {"ModHlp/showOnlyOneHelpPage", "bool", "1", "0"},
        {"ModNetwork/proxyType", "int", "0", "3"},
        {"ModNetwork/proxyPort", "int", "0", "8080"},
        {"ModSwUpdate/updateCheckInterval", "int", "1", "3"},
        // What the user has entered there is stored once there is any: empty texts are not.
        {"ModImport/program/mode", "int", "0", "1"},
        {"ModSwUpdate/timeOut", "int", "20", "33"},
        {"ModSrcNavi/naviWidgetLocation", "int", "1", "2"},
        {"ModSrcNavi/tagListSortMode", "int", "0", "2"},
        {"ModSrcNavi/bookmarkSymbolColor", "color", "#808000", "#2765a3"},
        {"ModSrcNavi/font/label/weight", "int", "75", "50"},
        {"ModSrcNavi/font/label/italic", "bool", "0", "1"},
        {"ModSrcNavi/font/label/color", "color", "#000000", "#2868a8"},
        {"ModSrcNavi/font/hw/weight", "int", "75", "50"},
        {"ModSrcNavi/font/hw/italic", "bool", "0", "1"},
        {"ModSrcNavi/font/hw/color", "color", "#000080", "#296bad"},
        {"ModSrcNavi/font/const/weight", "int", "75", "50"},
        {"ModSrcNavi/font/const/italic", "bool", "0", "1"},
        {"ModSrcNavi/font/const/color", "color", "#008000", "#2a6eb2"},
        {"ModSrcNavi/font/sep/weight", "int", "75", "50"},
        {"ModSrcNavi/font/sep/italic", "bool", "0", "1"},
        {"ModSrcNavi/font/sep/color", "color", "#808000", "#2b71b7"},
        {"ModSrcNavi/font/grpBegin/weight", "int", "75", "50"},
        {"ModSrcNavi/font/grpBegin/italic", "bool", "0", "1"},
        {"ModSrcNavi/font/grpBegin/color", "color", "#808000", "#2c74bc"},
    };
    return keys;
}

const KeyTable& projectKeys()
{
    static const KeyTable keys = {
        {"PrjInfo/title", "string", "", "A title"},
        {"PrjInfo/version", "string", "", "2.7"},
        {"PrjInfo/comment", "string", "", "In &#60;one&#62; &amp; all"},
        {"sources/srcFiles", "list", "", "more.psm:main.psm"},
        {"ModEditor/tabIndent", "int", "4", "6"},
        {"AsmFe/defaultCharset", "string", "UTF-8", "ISO-8859-1"},
        {"AsmFe/behavior/charset", "int", "1", "2"},
        {"AsmFe/behavior/equ", "int", "1", "0"},
        {"AsmFe/behavior/set", "int", "1", "2"},
        {"AsmFe/target/vhdl/en", "bool", "0", "1"},
        {"AsmFe/target/vhdl/writeFileEventBut1", "bool", "1", "0"},
        {"AsmFe/target/vhdl/writeFileEventBut2", "bool", "1", "0"},
        {"AsmFe/target/vhdl/writeFileEventSave", "bool", "0", "1"},
        {"AsmFe/target/vhdl/entityName", "string", "", "vhdl_rom"},
        {"AsmFe/target/vhdl/templateFile", "path", "", "template.vhd"},
        {"AsmFe/target/vhdl/outputFile", "path", "", "out&#47;rom.vhd"},
        {"AsmFe/target/verilog/en", "bool", "0", "1"},
        {"AsmFe/target/verilog/writeFileEventBut1", "bool", "1", "0"},
        {"AsmFe/target/verilog/writeFileEventBut2", "bool", "1", "0"},
        {"AsmFe/target/verilog/writeFileEventSave", "bool", "0", "1"},
        {"AsmFe/target/verilog/entityName", "string", "", "verilog_rom"},
        {"AsmFe/target/verilog/templateFile", "path", "", "template.v"},
        {"AsmFe/target/verilog/outputFile", "path", "", "out&#47;rom.v"},
        {"AsmFe/target/hex/en", "bool", "0", "1"},
        {"AsmFe/target/hex/writeFileEventBut1", "bool", "1", "0"},
        {"AsmFe/target/hex/writeFileEventBut2", "bool", "1", "0"},
        {"AsmFe/target/hex/writeFileEventSave", "bool", "0", "1"},
        {"AsmFe/target/hex/outputFile", "path", "", "out&#47;rom.hex"},
        {"AsmFe/target/mem/en", "bool", "0", "1"},
        {"AsmFe/target/mem/writeFileEventBut1", "bool", "1", "0"},
        {"AsmFe/target/mem/writeFileEventBut2", "bool", "1", "0"},
        {"AsmFe/target/mem/writeFileEventSave", "bool", "0", "1"},
        {"AsmFe/target/mem/outputFile", "path", "", "out&#47;rom.mem"},
        {"AsmFe/target/mem/gapStuffingEn", "bool", "1", "0"},
        {"Syscall/syscall0ExecEventBut1", "bool", "0", "1"},
        {"Syscall/syscall0ExecEventBut2", "bool", "0", "1"},
        {"Syscall/syscall0ExecEventSave", "bool", "0", "1"},
        {"Syscall/syscall0En", "bool", "1", "0"},
        {"Syscall/syscall0BlockingModeEn", "bool", "1", "0"},
        {"Syscall/syscall0AbortIfNoSuccess", "bool", "0", "1"},
        {"Syscall/syscall0StoreRelToPrj", "bool", "1", "0"},
        {"Syscall/syscall0RetValOfSuccess", "int", "0", "3"},
        {"Syscall/syscall0Exe", "path", "", "tools&#47;run0.sh"},
        {"Syscall/syscall0Arg", "string", "", "-a  b0"},
        {"Syscall/syscall0Comment", "string", "", "Program 1"},
        {"Syscall/syscall1ExecEventBut1", "bool", "0", "1"},
        {"Syscall/syscall1ExecEventBut2", "bool", "0", "1"},
        {"Syscall/syscall1ExecEventSave", "bool", "0", "1"},
        {"Syscall/syscall1En", "bool", "0", "1"},
        {"Syscall/syscall1BlockingModeEn", "bool", "1", "0"},
        {"Syscall/syscall1AbortIfNoSuccess", "bool", "0", "1"},
        {"Syscall/syscall1StoreRelToPrj", "bool", "1", "0"},
        {"Syscall/syscall1RetValOfSuccess", "int", "0", "4"},
        {"Syscall/syscall1Exe", "path", "", "tools&#47;run1.sh"},
        {"Syscall/syscall1Arg", "string", "", "-a  b1"},
        {"Syscall/syscall1Comment", "string", "", "Program 2"},
        {"Syscall/syscall2ExecEventBut1", "bool", "0", "1"},
        {"Syscall/syscall2ExecEventBut2", "bool", "0", "1"},
        {"Syscall/syscall2ExecEventSave", "bool", "0", "1"},
        {"Syscall/syscall2En", "bool", "0", "1"},
        {"Syscall/syscall2BlockingModeEn", "bool", "1", "0"},
        {"Syscall/syscall2AbortIfNoSuccess", "bool", "0", "1"},
        {"Syscall/syscall2StoreRelToPrj", "bool", "1", "0"},
        {"Syscall/syscall2RetValOfSuccess", "int", "0", "5"},
        {"Syscall/syscall2Exe", "path", "", "tools&#47;run2.sh"},
        {"Syscall/syscall2Arg", "string", "", "-a  b2"},
        {"Syscall/syscall2Comment", "string", "", "Program 3"},
    };
    return keys;
}

const KeyTable& imageKeys()
{
    static const KeyTable keys = {
        {"Outputs/mif/en", "bool", "0", "1"},
        {"Outputs/mif/writeFileEventBut1", "bool", "1", "0"},
        {"Outputs/mif/writeFileEventBut2", "bool", "1", "0"},
        {"Outputs/mif/writeFileEventSave", "bool", "0", "1"},
        {"Outputs/mif/outputFile", "path", "", "out&#47;rom.mif"},
        {"Outputs/mif/wordWidth", "int", "18", "9"},
        {"Outputs/coe/en", "bool", "0", "1"},
        {"Outputs/coe/writeFileEventBut1", "bool", "1", "0"},
        {"Outputs/coe/writeFileEventBut2", "bool", "1", "0"},
        {"Outputs/coe/writeFileEventSave", "bool", "0", "1"},
        {"Outputs/coe/outputFile", "path", "", "out&#47;rom.coe"},
        {"Outputs/coe/wordWidth", "int", "18", "16"},
        {"Outputs/binary/en", "bool", "0", "1"},
        {"Outputs/binary/writeFileEventBut1", "bool", "1", "0"},
        {"Outputs/binary/writeFileEventBut2", "bool", "1", "0"},
        {"Outputs/binary/writeFileEventSave", "bool", "0", "1"},
        {"Outputs/binary/outputFile", "path", "", "out&#47;rom.binary"},
        {"Outputs/binary/wordWidth", "int", "18", "32"},
        {"Outputs/binary/layout", "int", "0", "1"},
        {"Outputs/ihex/en", "bool", "0", "1"},
        {"Outputs/ihex/writeFileEventBut1", "bool", "1", "0"},
        {"Outputs/ihex/writeFileEventBut2", "bool", "1", "0"},
        {"Outputs/ihex/writeFileEventSave", "bool", "0", "1"},
        {"Outputs/ihex/outputFile", "path", "", "out&#47;rom.ihex"},
        {"Outputs/ihex/wordWidth", "int", "18", "1"},
        {"Outputs/ihex/layout", "int", "0", "2"},
        {"Outputs/ram/en", "bool", "0", "1"},
        {"Outputs/ram/writeFileEventBut1", "bool", "1", "0"},
        {"Outputs/ram/writeFileEventBut2", "bool", "1", "0"},
        {"Outputs/ram/writeFileEventSave", "bool", "0", "1"},
        {"Outputs/ram/outputFile", "path", "", "out&#47;rom.ram"},
        {"Outputs/ram/wordWidth", "int", "18", "27"},
        {"Outputs/ram/layout", "int", "0", "1"},
    };
    return keys;
}

const KeyTable& documentKeys()
{
    static const KeyTable keys = {
        {"ModEditor/openFiles", "list", "", "more.psm:main.psm"},
        {"ModEditor/lastFile", "path", "", "main.psm"},
        {"ModEditor/lastCursorPos", "int", "0", "3"},
        {"ModHlp/openFiles", "list", "", "qthelp&amp;#58;&#47;&#47;nv&#47;Nalvo&#47;about.html"},
        // Only one page of the centre is the current one, which is a document here.
        {"ModHlp/currentFile", "string", "", ""},
    };
    return keys;
}

const KeyTable& processorKeys(const QString& processor)
{
    static const QMap<QString, KeyTable> keys = {
        {"Xilinx PicoBlaze 3",
         {{"XPBlze3/clkFreq", "int", "80000000", "12500000"}, {"XPBlze3/memMap/pageSize", "int", "1024", "512"}}},
        {"Xilinx PicoBlaze 6",
         {{"XPBlze6/scrpdSize", "int", "64", "256"},
          {"XPBlze6/intVectorAddr", "int", "1023", "511"},
          {"XPBlze6/clkFreq", "int", "80000000", "4294967296"},
          {"XPBlze6/memMap/pageSize", "int", "1024", "2048"}}},
        {"Lattice Mico8 v3.x",
         {{"LMico8v3x/scrpdSize", "int", "32", "64"},
          {"LMico8v3x/clkFreq", "int", "80000000", "12500000"},
          {"LMico8v3x/instrClkCnt", "int", "2", "3"},
          {"LMico8v3x/regCount", "int", "32", "16"},
          {"LMico8v3x/memMap/pageSize", "int", "1024", "512"}}},
    };
    static const KeyTable none;
    const auto found = keys.constFind(processor);
    return found != keys.constEnd() ? found.value() : none;
}

bool isOfType(const sKey_t& key, const QString& value)
{
    static const QMap<QString, QString> forms = {
        {"int", "-?[0-9]+"},          {"bool", "[01]"},      {"color", "#[0-9a-f]{6}"},
        {"font", "[^,]+(,[^,]*){9}"}, {"string", "[^\\n]*"}, {"list", "([^:]+(:[^:]+)*)?"},
        {"path", "([^/].*)?"},
    };
    const auto form = forms.constFind(key.type);
    return form != forms.constEnd() &&
           QRegularExpression(QRegularExpression::anchoredPattern(form.value())).match(value).hasMatch();
}

KeyValues parseSettings(const QByteArray& file)
{
    KeyValues values;
    QString section;
    for (const QString& line : QString::fromLatin1(file).split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith('[')) {
            section = line.mid(1, line.size() - 2);
            continue;
        }
        QString value = line.section('=', 1);
        if (value.size() > 1 && value.startsWith('"') && value.endsWith('"'))
            value = value.mid(1, value.size() - 2);
        values.insert(section + '/' + line.section('=', 0, 0).replace('\\', '/'), value);
    }
    return values;
}

KeyValues parseProject(const QByteArray& file)
{
    KeyValues values;
    QStringList path;
    QString text;
    bool leaf = false;
    QXmlStreamReader reader(file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            path.append(reader.name().toString());
            text.clear();
            leaf = true;
        } else if (reader.isCharacters()) {
            text.append(reader.text());
        } else if (reader.isEndElement()) {
            if (leaf && path.size() > 1)
                values.insert(QStringList(path.mid(1)).join('/'), text);
            path.removeLast();
            leaf = false;
        }
    }
    if (reader.hasError())
        values.insert("error", reader.errorString());
    return values;
}

QByteArray projectOf(const KeyValues& values)
{
    QByteArray file;
    QXmlStreamWriter writer(&file);
    writer.writeStartElement("project");
    writer.writeAttribute("version", "3");
    QStringList open;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        QStringList path = it.key().split('/');
        const QString name = path.takeLast();
        int common = 0;
        while (common < open.size() && common < path.size() && open[common] == path[common])
            ++common;
        for (; open.size() > common; open.removeLast())
            writer.writeEndElement();
        for (; open.size() < path.size(); open.append(path[open.size()]))
            writer.writeStartElement(path[open.size()]);
        writer.writeTextElement(name, it.value());
    }
    for (; !open.isEmpty(); open.removeLast())
        writer.writeEndElement();
    writer.writeEndElement();
    return file;
}
