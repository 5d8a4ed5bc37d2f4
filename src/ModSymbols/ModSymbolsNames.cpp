// Usages of a name, and another name for it.

#include "ModSymbols.h"

#include "NumberText.h"
#include "RenameDialog.h"
#include "SymbolRename.h"
#include "UsagesPanel.h"

#include "EditorDocument.h"
#include "HelpRef.h"
#include "ModAsmFeHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"

#include <QApplication>
#include <QMessageBox>
#include <QTextBlock>

namespace nsModSymbols {

using nsModAsmFe::sSymbol;
using nsModAsmFe::sSymbolPlace;
using nsModAsmFe::SymbolRename;
using nsModAsmFe::SymbolTable;
using nsModEditor::EditorDocument;

namespace {

/// What a name is, in a few words.
QString noteOf(const sSymbol& symbol)
{
    switch (symbol.kind) {
    case nsModAsmFe::symbolLabel:
        return symbol.hasValue ? NumberText::address(symbol.value, symbol.page) : ModSymbols::tr("label");
    case nsModAsmFe::symbolConstant:
        return symbol.hasValue ? NumberText::inBases(symbol.value) : symbol.text;
    case nsModAsmFe::symbolNameSpace:
        return ModSymbols::tr("namespace");
    case nsModAsmFe::symbolDevice:
        return ModSymbols::tr("device");
    case nsModAsmFe::symbolFile:
        break;
    }
    return QString();
}

} // namespace

void ModSymbols::addUsagesPanel()
{
    if (m_usages != nullptr || modGuiHook == nullptr)
        return;
    m_usages = new UsagesPanel;
    HelpRef::set(m_usages, QStringLiteral("pageId://editorNames#usages"));
    connect(m_usages, &UsagesPanel::chosen, this, &ModSymbols::showUsage);
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockBottom, m_usages, tr("Usages"));
}

void ModSymbols::findUsages(EditorDocument* document)
{
    const sSymbol* symbol =
        symbolAt(document, document->textCursor().blockNumber(), document->textCursor().positionInBlock());
    if (symbol == nullptr) {
        say(tr("There is no name of the program here."));
        return;
    }
    addUsagesPanel();
    if (m_usages == nullptr)
        return;
    m_usagesSymbol = *symbol;
    const SymbolTable& table = m_names.lastTable();
    QVector<sUsage> usages;
    int uses = 0;
    for (const sSymbolPlace& place :
         table.placesOf(table.find(symbol->kind, m_usagesSymbol.nameSpace, m_usagesSymbol.name))) {
        sUsage usage;
        usage.place = m_names.placeOf(place);
        usage.file = modPrjHook != nullptr ? modPrjHook->convToRelPath(usage.place.path) : usage.place.path;
        usage.text = m_names.lineText(place.file, place.line);
        usage.isDefinition = place.isDefinition;
        uses += place.isDefinition ? 0 : 1;
        usages.append(usage);
    }
    m_usages->showUsages(uses == 1 ? tr("%1: 1 use").arg(m_usagesSymbol.fullName())
                                   : tr("%1: %2 uses").arg(m_usagesSymbol.fullName()).arg(uses),
                         usages);
    modGuiHook->setCurrentWidget(m_usages);
    m_usages->setFocus();
}

/// The text may have changed since: then the place is sought again.
void ModSymbols::showUsage(int index)
{
    if (m_usages == nullptr || index < 0 || index >= m_usages->usages().size())
        return;
    const sUsage usage = m_usages->usages().at(index);
    const SymbolTable& table = m_names.table();
    const QVector<sSymbolPlace> places =
        table.placesOf(table.find(m_usagesSymbol.kind, m_usagesSymbol.nameSpace, m_usagesSymbol.name));
    const bool isSame = places.size() == m_usages->usages().size();
    jump(isSame ? m_names.placeOf(places.at(index)) : usage.place);
}

void ModSymbols::rename(EditorDocument* document)
{
    if (modAsmFeHook == nullptr || modAsmFeHook->words() == nullptr)
        return;
    const int index =
        m_names.symbolAt(document, document->textCursor().blockNumber(), document->textCursor().positionInBlock());
    const SymbolTable table = m_names.lastTable();
    const SymbolRename plan(table, *modAsmFeHook->words());
    QString refusal = plan.refusal(index);
    if (refusal.isEmpty())
        refusal = m_names.staleReason();
    if (!refusal.isEmpty()) {
        const QPointer<QMessageBox> box(
            new QMessageBox(QMessageBox::Information, tr("Rename"), refusal, QMessageBox::Ok, document->window()));
        box->setTextFormat(Qt::PlainText);
        box->exec();
        // The window may be gone meanwhile, and the box with it.
        delete box;
        return;
    }
    QStringList files;
    const QVector<sSymbolPlace> places = plan.places(index);
    for (const sSymbolPlace& place : places) {
        if (!files.contains(table.files.at(place.file)))
            files.append(table.files.at(place.file));
    }
    const QString explanation = (places.size() == 1 ? tr("1 place") : tr("%1 places").arg(places.size())) +
                                (files.size() == 1 ? tr(" in 1 source") : tr(" in %1 sources").arg(files.size())) +
                                tr(". Comments, strings and text that a condition skips stay as they are.");
    const sSymbol symbol = table.symbol(index);
    const QPointer<ModSymbols> self(this);
    const QPointer<RenameDialog> dialog(new RenameDialog(
        symbol.name, explanation, [&plan, index](const QString& name) { return plan.refusal(index, name); },
        document->window()));
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const QString name = dialog != nullptr ? dialog->name() : QString();
    delete dialog;
    if (self != nullptr && isAccepted && !name.isEmpty())
        applyRename(symbol, name);
}

/// Everything may have happened since the question: all is looked up again, and nothing is changed unless all can be.
void ModSymbols::applyRename(const sSymbol& symbol, const QString& name)
{
    const auto fail = [this](const QString& text) {
        if (modMsgHook != nullptr)
            modMsgHook->showErrorMessage(tr("Nothing was renamed. %1").arg(text));
        say(text);
    };
    if (modAsmFeHook == nullptr || modEditorHook == nullptr || modAsmFeHook->words() == nullptr)
        return;
    const QPointer<EditorDocument> before(current());
    const QTextCursor cursor = before != nullptr ? before->textCursor() : QTextCursor();
    // Opening a document changes the table: its text is read from there.
    const auto placesNow = [&] {
        const SymbolTable& table = m_names.table();
        return table.placesOf(table.find(symbol.kind, symbol.nameSpace, symbol.name));
    };
    const QString stale = m_names.staleReason();
    if (!stale.isEmpty())
        return fail(stale);
    const QPointer<ModSymbols> self(this);
    for (const sSymbolPlace& place : placesNow()) {
        const QString path = m_names.placeOf(place).path;
        const bool isOpen = documentOf(path) != nullptr || modEditorHook->openFile(path);
        if (self == nullptr)
            return;
        if (!isOpen)
            return fail(tr("\"%1\" can not be opened.").arg(path));
    }
    const SymbolTable table = m_names.table();
    const SymbolRename plan(table, *modAsmFeHook->words());
    const int index = table.find(symbol.kind, symbol.nameSpace, symbol.name);
    const QString refusal = plan.refusal(index, name);
    if (!refusal.isEmpty())
        return fail(refusal);
    QHash<EditorDocument*, QTextCursor> edits;
    const QVector<sSymbolPlace> places = plan.places(index);
    for (const sSymbolPlace& place : places) {
        EditorDocument* document = documentOf(table.files.at(place.file));
        if (document == nullptr || document->isReadOnly())
            return fail(tr("\"%1\" can not be changed.").arg(table.files.at(place.file)));
        const QString line = document->document()->findBlockByNumber(place.line).text();
        if (line.midRef(place.column, place.length) != symbol.name)
            return fail(tr("\"%1\" is not what was read.").arg(table.files.at(place.file)));
    }
    for (int i = places.size() - 1; i >= 0; --i) {
        const sSymbolPlace& place = places.at(i);
        EditorDocument* document = documentOf(table.files.at(place.file));
        QTextCursor& edit = edits[document];
        if (edit.isNull()) {
            edit = QTextCursor(document->document());
            edit.beginEditBlock();
        }
        const int start = document->document()->findBlockByNumber(place.line).position() + place.column;
        edit.setPosition(start);
        edit.setPosition(start + place.length, QTextCursor::KeepAnchor);
        edit.insertText(name);
    }
    for (QTextCursor& edit : edits)
        edit.endEditBlock();
    // The page that the user was in.
    if (before != nullptr && modEditorHook->openFile(before->filePath())) {
        before->setTextCursor(cursor);
        before->setFocus();
    }
    say(places.size() == 1 ? tr("1 place renamed") : tr("%1 places renamed").arg(places.size()));
}

// --- quick open ---

QVector<nsModSrcNavi::NaviSymbol> ModSymbols::naviSymbols()
{
    QVector<nsModSrcNavi::NaviSymbol> result;
    const SymbolTable& table = m_names.table();
    const QVector<const sSymbolPlace*> definitions = table.definitions();
    for (int i = 0; i < definitions.size(); ++i) {
        const sSymbol& symbol = table.symbol(i);
        if (definitions.at(i) == nullptr || symbol.kind == nsModAsmFe::symbolFile)
            continue;
        const sTextPlace place = m_names.placeOf(*definitions.at(i));
        nsModSrcNavi::NaviSymbol found;
        found.name = symbol.fullName();
        found.note = noteOf(symbol);
        found.file = place.path;
        found.line = place.line;
        found.column = place.column;
        found.length = place.length;
        result.append(found);
    }
    return result;
}

void ModSymbols::showNaviSymbol(const nsModSrcNavi::NaviSymbol& symbol)
{
    jump({symbol.file, symbol.line, symbol.column, symbol.length});
}

} // namespace nsModSymbols
