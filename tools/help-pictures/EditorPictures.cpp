// The main window with a program in it, the editor and what belongs to it.

#include "PictureWindow.h"
#include "Pictures.h"

#include "EditorSupportMenu.h"
#include "EditorWidget.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "RecoveryStore.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QTreeView>
#include <QTreeWidget>

namespace {

using nsModEditor::EditorWidget;
using Field = std::pair<const char*, const char*>;

const qreal menuOverlap = 4;
const QSize compareSize(960, 420);

/// @param name below the folder of the sources of the UART monitor
EditorWidget* openSource(PictureWindow& stage, const char* name)
{
    const QString path = stage.example(QStringLiteral("uart_monitor")) + QStringLiteral("/src/") + QLatin1String(name);
    stage.module<nsModEditor::ModEditor>()->openFile(path);
    return qobject_cast<EditorWidget*>(stage.module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
}

/// The panel of a dock that the widget is in.
void showPanel(PictureWindow& stage, QWidget* widget)
{
    auto* gui = stage.module<ModGuiHookIf>();
    for (QWidget* panel = widget; panel != nullptr; panel = panel->parentWidget()) {
        if (gui->hasWidget(ModGuiHookIf::eLocationDockRight, panel))
            gui->setCurrentWidget(panel);
    }
}

} // namespace

void takeWindow(PictureWindow& stage)
{
    stage.open(QStringLiteral("uart_monitor"));
    openSource(stage, "main.psm");
    EditorWidget* document = openSource(stage, "uart.psm");
    stage.trigger(QStringLiteral("Run assembler"));
    PictureWindow::rest();
    if (document != nullptr)
        document->setCursorToLine(19);
    auto* constants = stage.window()->findChild<QTreeView*>(QStringLiteral("equListView"));
    showPanel(stage, constants);
    stage.take(QStringLiteral("mainWindow"), stage.window());
    stage.take(QStringLiteral("equList"), stage.widget(QStringLiteral("dockRight")));
    stage.take(QStringLiteral("navigator"), stage.widget(QStringLiteral("dockLeft")));
}

void takeEditor(PictureWindow& stage)
{
    auto* editor = stage.module<nsModEditor::ModEditor>();
    EditorWidget* document = openSource(stage, "uart.psm");
    if (document == nullptr)
        return;
    stage.trigger(QStringLiteral("Run assembler"));
    PictureWindow::rest();
    // With breakpoints, a start mark and a bookmark.
    editor->simEn(true);
    document->setSimBreakpoint(15);
    document->setSimBreakpoint(29);
    document->setSimStartPointer(9);
    document->setBookmark(26);
    document->setCursorToLine(17);
    stage.take(QStringLiteral("editor"), document);
    document->clearSimBreakpoints();
    document->clearSimStartPointer();
    document->clearBookmarks();
    editor->simEn(false);

    stage.trigger(QStringLiteral("Replace"));
    for (const Field& text : {Field("editFind", "cell"), Field("editReplace", "place")}) {
        if (auto* line = qobject_cast<QLineEdit*>(stage.widget(QLatin1String(text.first))))
            line->setText(QLatin1String(text.second));
    }
    stage.trigger(QStringLiteral("Find next"));
    PictureWindow::rest();
    QWidget* center = stage.window()->centralWidget();
    stage.take(QStringLiteral("editorFindReplace"), center);
    if (auto* bar = stage.widget(QStringLiteral("findReplaceWidget"))) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(bar->findChild<QLineEdit*>(QStringLiteral("editFind")), &escape);
    }

    nsModEditor::EditorSupportMenu* menus = editor->supportMenu();
    const std::pair<QMenu*, QMenu*> menu(menus->menu, menus->node({QStringLiteral("Directives")})->menu);
    if (menu.first == nullptr || menu.second == nullptr)
        return;
    menu.first->popup(QPoint(0, 0));
    menu.first->setActiveAction(menu.second->menuAction());
    PictureWindow::settle();
    const QImage left = stage.pictureOf(menu.first);
    menu.second->popup(QPoint(0, 0));
    PictureWindow::settle();
    const QImage right = stage.pictureOf(menu.second);
    const qreal scale = left.devicePixelRatio();
    const int below = int(menu.first->actionGeometry(menu.second->menuAction()).top() * scale);
    QImage both(left.width() + right.width(), qMax(left.height(), below + right.height()), QImage::Format_RGB888);
    both.fill(Qt::white);
    QPainter painter(&both);
    painter.drawImage(QRect(QPoint(0, 0), left.size()), left);
    painter.drawImage(QRect(QPoint(left.width() - int(menuOverlap * scale), below), right.size()), right);
    painter.end();
    stage.save(QStringLiteral("editorTemplates"), both);
    menu.second->hide();
    menu.first->hide();
}

void keepTexts(PictureWindow& stage)
{
    const QString folder = stage.example(QStringLiteral("uart_monitor"));
    const struct
    {
        const char* source;
        RecoveryStore::eKind_t kind;
        const char* before;
        const char* after;
    } texts[] = {
        {"timer.psm", RecoveryStore::eKindDropped, "TIMER_RUN", "TIMER_RUN"},
        {"uart.psm", RecoveryStore::eKindUnsaved, "        JUMP    NZ, send\n",
         "        JUMP    NZ, send    ; no room yet\n"},
    };
    RecoveryStore store;
    for (const auto& text : texts) {
        RecoveryStore::Entry entry;
        entry.kind = text.kind;
        entry.path = folder + QStringLiteral("/src/") + QLatin1String(text.source);
        entry.project = folder + QStringLiteral("/uart_monitor.nalvo");
        entry.isNew = false;
        QFile file(entry.path);
        QString error;
        if (!file.open(QIODevice::ReadOnly) ||
            store.put(entry, file.readAll().replace(text.before, text.after), &error).isEmpty())
            stage.fail(entry.path + QStringLiteral(": can not be kept: ") + error);
    }
}

void takeRecovery(PictureWindow& stage)
{
    stage.onDialog(QStringLiteral("recoverDialog"), [&stage](QDialog* dialog) {
        auto* list = dialog->findChild<QTreeWidget*>(QStringLiteral("recoverList"));
        auto* compare = dialog->findChild<QPushButton*>(QStringLiteral("recoverCompare"));
        if (list == nullptr || compare == nullptr)
            return;
        // The moments of this run would make another picture each time.
        const QStringList moments = {QStringLiteral("12 Mar 2026 17:42"), QStringLiteral("12 Mar 2026 11:05")};
        for (int row = 0; row < list->topLevelItemCount(); ++row)
            list->topLevelItem(row)->setText(1, moments.value(row));
        for (int column = 0; column < 3; ++column)
            list->resizeColumnToContents(column);
        dialog->resize(dialog->width(), dialog->sizeHint().height());
        stage.take(QStringLiteral("recovery"), dialog);
        compare->click();
    });
    stage.onDialog(QStringLiteral("textCompareDialog"), [&stage](QDialog* dialog) {
        for (QLabel* label : dialog->findChildren<QLabel*>()) {
            if (label->text().startsWith(QLatin1String("Kept on ")))
                label->setText(QStringLiteral("Kept on 12 Mar 2026 17:42:06"));
        }
        dialog->resize(compareSize);
        stage.take(QStringLiteral("textCompare"), dialog);
    });
    stage.trigger(QStringLiteral("Recover text..."));
}
