#include "EditorSupportMenu.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QPoint>
#include <QRegExp>

#include <utility>

namespace nsModEditor {

namespace {

QStringList components(const QString& path)
{
    return path.split('/', Qt::SkipEmptyParts);
}

/// The text that a template file inserts: all lines after the line "template =".
bool templateText(const QString& path, QString* text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    const QRegExp mark("template\\s*=");
    bool begun = false;
    while (!file.atEnd()) {
        const QString line = QString::fromLatin1(file.readLine());
        if (begun)
            *text += line;
        else
            begun = mark.indexIn(line) >= 0;
    }
    return true;
}

} // namespace

EditorSupportMenu::EditorSupportMenu(QObject* parent)
    : EditorSupportMenuNode(QString(), parent)
{
    menu = new QMenu(tr("Insert..."));
    // Entries of sub menus report through the menu that they are shown from.
    connect(menu, SIGNAL(triggered(QAction*)), this, SLOT(handleAction(QAction*)));
    connect(menu, &QMenu::aboutToShow, this, &EditorSupportMenu::makeReady);
}

void EditorSupportMenu::setEntry(QString path, QString data, eType_t type)
{
    const QStringList names = components(path);
    if (names.isEmpty())
        return;
    EditorSupportMenuNode* entry = node(names);
    entry->data = data;
    entry->type = type;
}

void EditorSupportMenu::fillLater(std::function<void(EditorSupportMenu*)> filler)
{
    m_fillers.append(std::move(filler));
}

void EditorSupportMenu::makeReady()
{
    const auto fillers = std::exchange(m_fillers, {});
    for (const auto& filler : fillers)
        filler(this);
}

void EditorSupportMenu::removeEntry(QString path)
{
    removeNode(components(path));
}

void EditorSupportMenu::setEntrySortEn(QString path, bool enabled)
{
    setSortEn(components(path), enabled);
}

void EditorSupportMenu::setEnabled(bool enabled)
{
    menu->setEnabled(enabled);
}

void EditorSupportMenu::showMenu(QMenu* shown, const QPoint& pos)
{
    shown->addSeparator();
    addSupportMenu(shown);
    shown->exec(pos);
}

void EditorSupportMenu::addSupportMenu(QMenu* shown)
{
    makeReady();
    if (children.isEmpty())
        return;
    // The menu is nobody's child, so it does not inherit the look of the window that it is shown in.
    const QWidget* owner = shown->parentWidget();
    const QString sheet = owner != nullptr ? owner->window()->styleSheet() : QString();
    if (menu->styleSheet() != sheet)
        menu->setStyleSheet(sheet);
    shown->addMenu(menu);
}

void EditorSupportMenu::handleAction(QAction* chosen)
{
    const auto* entry = chosen->data().value<EditorSupportMenuNode*>();
    if (entry == nullptr)
        return;
    if (entry->type == typeText) {
        emit insertText(entry->data);
    } else if (entry->type == typeFile) {
        QString text;
        if (templateText(entry->data, &text))
            emit insertText(text);
    }
}

} // namespace nsModEditor
