// Every field of every page in a real main window: cancelled, restored, set to defaults, applied and killed, while
// projects come and go.

#include "MainWindowFixture.h"

#include "ModAsmFeHookIf.h"
#include "ModConfig.h"
#include "ModPrj.h"
#include "ModSourcesHookIf.h"
#include "MyColorSelector.h"
#include "MyFontTable.h"
#include "QtPrinters.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>

#include <algorithm>
#include <functional>
#include <random>

namespace {

using Snapshot = QMap<QString, QStringList>; ///< values of all fields by the title of their page

class SettingsAttack : public MainWindowFixture
{
protected:
    void start()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
    }
    nsModConfig::ModConfig* config() const { return module<nsModConfig::ModConfig>(); }
    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    QWidget* dialog() const { return window->findChild<QWidget*>("configDialog"); }
    QListWidget* list() const { return dialog()->findChild<QListWidget*>("configList"); }
    QStringList titles() const
    {
        QStringList result;
        for (int row = 0; row < list()->count(); ++row)
            result.append(list()->item(row)->text());
        return result;
    }
    QWidget* page(const QString& title) const
    {
        auto* stack = dialog()->findChild<QStackedWidget*>("configPages");
        return static_cast<QScrollArea*>(stack->widget(titles().indexOf(title)))->widget();
    }
    template <class Widget>
    Widget* field(const QString& title, const QString& name) const
    {
        return page(title)->findChild<Widget*>(name);
    }
    void press(const QString& text) const
    {
        for (QPushButton* button : dialog()->findChildren<QPushButton*>()) {
            if (button->text() == text && button->isVisible()) {
                QTest::mouseClick(button, Qt::LeftButton);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                return;
            }
        }
        ADD_FAILURE() << "no button " << qPrintable(text);
    }
    void type(QWidget* field, const QString& text) const
    {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }

    QString makePrj(const QString& name, const QByteArray& processor = "Xilinx PicoBlaze 6",
                    const QByteArray& rest = QByteArray())
    {
        const QString path = projectDir() + '/' + name;
        QDir().mkpath(QFileInfo(path).path());
        for (const char* source : {"/a.psm", "/b.psm"})
            writeFile(QFileInfo(name).path() + source, "; nothing\n");
        return writeFile(name, "<project version=\"3\"><PrjInfo><title>T</title><version>1</version><comment>C</comment>"
                               "</PrjInfo><sources><srcFiles>a.psm:b.psm</srcFiles></sources><ModProcessor><processor>" +
                                   processor + "</processor></ModProcessor>" + rest + "</project>");
    }
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    static QString valueOf(QWidget* widget)
    {
        if (auto* box = qobject_cast<QSpinBox*>(widget))
            return QString::number(box->value());
        if (auto* box = qobject_cast<QDoubleSpinBox*>(widget))
            return QString::number(box->value(), 'f', 6);
        if (auto* box = qobject_cast<QComboBox*>(widget))
            return box->currentText();
        if (auto* box = qobject_cast<QCheckBox*>(widget))
            return QString::number(box->isChecked());
        if (auto* edit = qobject_cast<QPlainTextEdit*>(widget))
            return edit->toPlainText();
        if (auto* selector = qobject_cast<MyColorSelector*>(widget))
            return selector->color().name();
        if (auto* table = qobject_cast<MyFontTable*>(widget))
            return formatsOf(table);
        if (auto* files = qobject_cast<QListWidget*>(widget))
            return rowsOf(files);
        auto* edit = qobject_cast<QLineEdit*>(widget);
        return edit != nullptr && !isPartOfBox(widget) ? edit->text() : QString();
    }
    static bool isPartOfBox(QWidget* widget)
    {
        return qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) != nullptr ||
               qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr;
    }
    static QString formatsOf(MyFontTable* table)
    {
        QStringList result;
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            const QTextCharFormat format = table->format(row);
            result.append(QString("%1/%2/%3")
                              .arg(format.fontWeight() >= QFont::Bold)
                              .arg(format.fontItalic())
                              .arg(format.foreground().color().name()));
        }
        return result.join(' ');
    }
    static QString rowsOf(QListWidget* files)
    {
        QStringList result;
        for (int row = 0; row < files->count(); ++row)
            result.append(files->item(row)->text());
        return result.join(' ');
    }
    /// The settings of the processors have the same names: they go by that of their processor.
    QString nameOf(QWidget* widget) const
    {
        auto* stack = field<QStackedWidget>("Processor", "processorConfig");
        const int index = stack->indexOf(widget);
        return index < 0 ? widget->objectName() : field<QComboBox>("Processor", "processor")->itemText(index);
    }
    /// Leaves out the settings of all processors but the one that the page shows.
    void keepShownProcessor(Snapshot* values) const
    {
        const QString shown = field<QComboBox>("Processor", "processor")->currentText();
        QStringList kept;
        for (const QString& value : (*values)["Processor"]) {
            if (!value.contains("procConfigTabs") || value.contains("." + shown + "."))
                kept.append(value);
        }
        (*values)["Processor"] = kept;
    }
    Snapshot snapshot() const
    {
        Snapshot result;
        for (const QString& title : titles()) {
            for (QWidget* widget : page(title)->findChildren<QWidget*>()) {
                const QString value = valueOf(widget);
                QString name = widget->objectName() + widget->property("setting").toString();
                for (QWidget* parent = widget->parentWidget(); parent != page(title); parent = parent->parentWidget())
                    name.prepend(nameOf(parent) + '.');
                if (!value.isNull())
                    result[title].append(name + '=' + value);
            }
            // A widget that comes to the front changes its place among the others.
            result[title].sort();
        }
        return result;
    }

    static void change(QWidget* widget)
    {
        if (auto* box = qobject_cast<QSpinBox*>(widget))
            QTest::keyClick(box, box->value() < box->maximum() ? Qt::Key_Up : Qt::Key_Down);
        else if (auto* number = qobject_cast<QDoubleSpinBox*>(widget))
            QTest::keyClick(number, number->value() < number->maximum() ? Qt::Key_Up : Qt::Key_Down);
        else if (auto* choice = qobject_cast<QComboBox*>(widget))
            QTest::keyClick(choice, choice->currentIndex() < choice->count() - 1 ? Qt::Key_Down : Qt::Key_Up);
        else if (auto* check = qobject_cast<QCheckBox*>(widget))
            QTest::keyClick(check, Qt::Key_Space);
        else if (auto* text = qobject_cast<QPlainTextEdit*>(widget))
            QTest::keyClicks(text, "changed ");
        else if (auto* selector = qobject_cast<MyColorSelector*>(widget))
            selector->setColor(QColor(selector->color().rgb() ^ 0x123456));
        else if (auto* table = qobject_cast<MyFontTable*>(widget))
            changeFormats(table);
        else if (auto* files = qobject_cast<QListWidget*>(widget))
            removeFirst(files);
        else if (auto* edit = qobject_cast<QLineEdit*>(widget))
            QTest::keyClicks(edit, "x");
    }
    static void changeFormats(MyFontTable* table)
    {
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            for (int column = 1; column <= 2; ++column) {
                table->setCurrentIndex(table->model()->index(row, column));
                QTest::keyClick(table, Qt::Key_Space);
            }
        }
    }
    static void removeFirst(QListWidget* files)
    {
        files->setCurrentRow(0);
        QTest::keyClick(files, Qt::Key_Delete);
    }
    void changeEverything() const
    {
        for (const QString& title : titles()) {
            ASSERT_TRUE(config()->selectDialogPageByTitle(title));
            // What is enabled here enables the rest.
            const QList<QCheckBox*> first = page(title)->findChildren<QCheckBox*>("targetEnable");
            for (QCheckBox* box : first)
                change(box);
            for (QWidget* widget : page(title)->findChildren<QWidget*>()) {
                if (widget->objectName() != "targetEnable" && !valueOf(widget).isNull())
                    change(widget);
            }
        }
    }
    static void expectEachDiffers(const QStringList& a, const QStringList& b)
    {
        ASSERT_EQ(a.size(), b.size());
        for (int i = 0; i < a.size(); ++i)
            EXPECT_NE(a[i], b[i]) << qPrintable(a[i]);
    }
    static void expectSame(const QStringList& a, const QStringList& b, const QString& where)
    {
        ASSERT_EQ(a.size(), b.size()) << qPrintable(where);
        for (int i = 0; i < a.size(); ++i)
            EXPECT_EQ(a[i], b[i]) << qPrintable(where) << ": " << qPrintable(a[i]) << " is not " << qPrintable(b[i]);
    }
    static void expectSame(const Snapshot& a, const Snapshot& b)
    {
        ASSERT_EQ(a.keys(), b.keys());
        for (const QString& title : a.keys())
            expectSame(a[title], b[title], title);
    }
};

} // namespace

TEST_F(SettingsAttack, CancelLeavesEveryFileAndFieldAsItWas)
{
    start();
    const QString path = makePrj(QString::fromUtf8("Prüf stand/p ä.nalvo"));
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    config()->closeDialog(true);
    const QByteArray project = content(path);
    const QByteArray settings = content(settingsFile());
    config()->openDialog();
    const Snapshot before = snapshot();
    ASSERT_EQ(before.size(), titles().size());
    changeEverything();
    const Snapshot changed = snapshot();
    for (const QString& title : titles())
        expectEachDiffers(before[title], changed[title]);
    press("&Cancel");
    EXPECT_EQ(content(path), project);
    EXPECT_EQ(content(settingsFile()), settings);
    config()->openDialog();
    expectSame(snapshot(), before);
    config()->closeDialog();
    prj()->savePrjCfg();
    EXPECT_EQ(content(path), project);
    EXPECT_TRUE(closeWindow());
    // Sizes of the window and its like are written at the end as well.
    EXPECT_EQ(content(path), project);
    makeWindow();
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    expectSame(snapshot(), before);
}

TEST_F(SettingsAttack, RestoreAndDefaultsConcernTheirPageAlone)
{
    start();
    ASSERT_TRUE(prj()->open(makePrj("p.nalvo")));
    for (const QString& button : {QString("Restore values"), QString("Set page default values")}) {
        config()->openDialog();
        const Snapshot before = snapshot();
        const QStringList all = titles();
        config()->closeDialog();
        for (const QString& title : all) {
            config()->openDialog();
            changeEverything();
            const Snapshot changed = snapshot();
            ASSERT_TRUE(config()->selectDialogPageByTitle(title));
            press(button);
            Snapshot after = snapshot();
            for (const QString& other : all) {
                if (other != title)
                    expectSame(after[other], changed[other], button + " on " + title);
            }
            // Another processor's fields are out of sight, and stay as they are until it is chosen again.
            Snapshot wanted = before;
            keepShownProcessor(&after);
            keepShownProcessor(&wanted);
            if (button == "Restore values")
                expectSame(after[title], wanted[title], button + " on " + title);
            else
                EXPECT_NE(after[title], changed[title]) << qPrintable(title);
            config()->closeDialog();
        }
    }
}

TEST_F(SettingsAttack, WhatIsAppliedIsOnTheDiskEvenIfTheProgramDies)
{
    start();
    const QString path = makePrj("p.nalvo");
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    changeEverything();
    Snapshot applied = snapshot();
    keepShownProcessor(&applied);
    press("Apply and close");
    config()->openDialog();
    Snapshot shown = snapshot();
    keepShownProcessor(&shown);
    expectSame(shown, applied);
    config()->closeDialog();

    // Without any exit phase.
    makeWindow();
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    Snapshot read = snapshot();
    keepShownProcessor(&read);
    // The one setting that is not stored.
    QStringList* assembler[] = {&applied["Assembler"], &read["Assembler"]};
    for (QStringList* values : assembler)
        values->erase(std::remove_if(values->begin(), values->end(),
                                     [](const QString& value) { return value.contains("behaviorIntVector"); }),
                      values->end());
    expectSame(read, applied);
}

TEST_F(SettingsAttack, TheProjectCanBeClosedByTheMenuBehindEachWayOut)
{
    start();
    ASSERT_TRUE(prj()->open(makePrj("p.nalvo")));
    QAction* close = nullptr;
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->text() == "Close project")
            close = action;
    }
    ASSERT_NE(close, nullptr);
    const QList<std::function<void()>> waysOut = {
        [this] { press("Apply and close"); }, [this] { press("&Cancel"); },
        [this] { QTest::mouseClick(window->findChild<QPushButton*>("buttonCloseTab"), Qt::LeftButton); },
        [this] { config()->closeDialog(); }};
    for (const auto& leave : waysOut) {
        config()->openDialog();
        EXPECT_FALSE(close->isEnabled());
        leave();
        ASSERT_EQ(dialog() != nullptr && dialog()->isVisible(), false);
        EXPECT_TRUE(close->isEnabled());
        EXPECT_TRUE(close->isVisible());
        EXPECT_FALSE(close->associatedWidgets().isEmpty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    close->trigger();
    EXPECT_FALSE(prj()->isValid());
    EXPECT_FALSE(close->isEnabled());
}

TEST_F(SettingsAttack, ProjectsAndProcessorsComeAndGoInAnyOrder)
{
    start();
    const QStringList paths = {makePrj("1/a.nalvo", "Xilinx PicoBlaze 6"), makePrj("2/b.nalvo", "Lattice Mico8 v3.x"),
                               makePrj("3/c.nalvo", "Unheard Of"), makePrj("4/d.nalvo", "")};
    const QString broken = writeFile("broken.nalvo", "<project><a></project>");
    std::mt19937 random(7);
    QString log;
    for (int step = 0; step < 400; ++step) {
        const int what = int(random() % 9);
        log = QString("step %1: %2").arg(step).arg(what);
        if (what == 0)
            config()->openDialog();
        else if (what == 1)
            config()->closeDialog(true);
        else if (what == 2)
            config()->closeDialog(false);
        else if (what <= 4)
            ASSERT_TRUE(prj()->open(paths.at(int(random() % 4)))) << qPrintable(log);
        else if (what == 5)
            prj()->close();
        else if (what == 6)
            EXPECT_FALSE(prj()->open(broken)) << qPrintable(log);
        else if (what == 7)
            prj()->hndlAction(nsModPrj::PrjActions::eAction_t(random() % 3));
        else if (dialog() != nullptr && dialog()->isVisible() && prj()->isValid())
            change(field<QComboBox>("Processor", "processor"));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const bool open = dialog() != nullptr;
        if (auto* tabs = window->findChild<QTabWidget*>("prjMngrTabs")) {
            ASSERT_EQ(tabs->isEnabled(), !open) << qPrintable(log);
        }
        if (open) {
            ASSERT_EQ(page("Sources")->findChild<QListWidget*>("sourcesList")->count(), prj()->isValid() ? 2 : 0)
                << qPrintable(log);
        }
        ASSERT_EQ(module<ModSourcesHookIf>()->files().size(), prj()->isValid() ? 2 : 0) << qPrintable(log);
    }
    EXPECT_TRUE(closeWindow());
}
