// Light and dark in the real window: the system's palette, the user's choice, and what must follow.

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "ColorScheme.h"
#include "Colors.h"
#include "ModConfigHookIf.h"
#include "ModEditorHookIf.h"
#include "ModPrj.h"

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

namespace {

class ColorsInWindow : public MainWindowFixture
{
protected:
    ~ColorsInWindow() override
    {
        window.reset();
        Colors::setScheme(Colors::eLight);
        QApplication::setPalette(QPalette());
    }

    static QPalette systemPalette(bool dark)
    {
        QPalette palette(dark ? QColor(0x303030) : QColor(0xefefef), dark ? QColor(0x303030) : QColor(0xefefef));
        palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
        return palette;
    }
    /// As the settings of a desktop do while the program runs.
    static void changeSystem(bool dark)
    {
        QApplication::setPalette(systemPalette(dark));
        settleLayout();
    }
    void choose(const QString& scheme)
    {
        module<ModConfigHookIf>()->openDialog(QStringLiteral("Appearance"));
        auto* box = window->findChild<QComboBox*>(QStringLiteral("colorScheme"));
        ASSERT_NE(box, nullptr);
        box->setFocus();
        QTest::keyClicks(box, scheme.left(1));
        ASSERT_EQ(box->currentText(), scheme);
        for (QPushButton* button : window->findChild<QWidget*>("configDialog")->findChildren<QPushButton*>()) {
            if (button->text() == "Apply and close")
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        ADD_FAILURE() << "no button";
    }
    bool isDark() const
    {
        const bool window = this->window->palette().color(QPalette::Window).lightness() < 128;
        EXPECT_EQ(window, Colors::scheme() == Colors::eDark);
        return window;
    }
    QPlainTextEdit* editor() const { return window->findChild<QPlainTextEdit*>(QStringLiteral("editorWidget")); }
    void openProject()
    {
        writeFile("main.psm", "; a comment\nstart: LOAD s0, 0x12\n       JUMP start\n");
        const QString file =
            writeFile("p.nalvo", "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo><sources><srcFiles>main.psm"
                                 "</srcFiles></sources><ModProcessor><processor>Xilinx PicoBlaze 3</processor>"
                                 "</ModProcessor></project>");
        ASSERT_TRUE(module<nsModPrj::ModPrj>()->open(file));
        module<ModEditorHookIf>()->openFile(projectDir() + "/main.psm");
        settleLayout();
    }
    /// The colour of the first character of a line of the document.
    QColor colorOfLine(int line) const
    {
        for (QPlainTextEdit* edit : window->findChildren<QPlainTextEdit*>()) {
            if (!edit->isVisible() || !edit->toPlainText().startsWith("; a comment"))
                continue;
            const auto formats = edit->document()->findBlockByNumber(line).layout()->formats();
            for (const QTextLayout::FormatRange& range : formats) {
                if (range.start == 0)
                    return range.format.foreground().color();
            }
        }
        return {};
    }
    /// Part of the pixels of a picture that are nearly white (or nearly black), 0 to 1.
    static double part(const QImage& image, bool white)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const int gray = qGray(image.pixel(x, y));
                count += white ? gray > 235 : gray < 25;
            }
        }
        return double(count) / (double(image.width()) * image.height());
    }
};

} // namespace

TEST_F(ColorsInWindow, theSystemsPaletteIsFollowedWhileTheProgramRuns)
{
    makeWindow();
    EXPECT_FALSE(isDark());
    changeSystem(true);
    EXPECT_TRUE(isDark());
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), Colors::of(Colors::ePage, Colors::eDark));
    EXPECT_TRUE(window->styleSheet().contains(Colors::of(Colors::eGround, Colors::eDark).name()));
    EXPECT_FALSE(window->styleSheet().contains(Colors::of(Colors::eGround, Colors::eLight).name()));
    changeSystem(false);
    EXPECT_FALSE(isDark());
    changeSystem(true);
    EXPECT_TRUE(isDark());
}

TEST_F(ColorsInWindow, aDarkSystemIsDarkFromTheStart)
{
    QApplication::setPalette(systemPalette(true));
    makeWindow();
    EXPECT_TRUE(isDark());
    EXPECT_EQ(QApplication::palette(), Colors::palette());
    // A platform that tells a change, but hands no palette out: its own one counts, which is light here.
    QEvent change(QEvent::ThemeChange);
    QApplication::sendEvent(window.get(), &change);
    EXPECT_FALSE(isDark());
    EXPECT_EQ(QApplication::palette(), Colors::palette());
}

TEST_F(ColorsInWindow, theUsersChoiceCountsAndStays)
{
    makeWindow();
    choose("Dark");
    EXPECT_TRUE(isDark());
    EXPECT_EQ(readSetting("ModGui/colorScheme"), "2") << "at once, not only at the end";
    changeSystem(false);
    EXPECT_TRUE(isDark()) << "the choice, not the system";
    ASSERT_TRUE(closeWindow());
    makeWindow();
    EXPECT_TRUE(isDark());
    choose("Light");
    changeSystem(true);
    EXPECT_FALSE(isDark());
    choose("As the system");
    EXPECT_TRUE(isDark()) << "which is dark by now";
}

TEST_F(ColorsInWindow, aWrongValueInTheSettingsIsTheSystem)
{
    for (const char* value : {"3", "-1", "dark"}) {
        writeSetting("ModGui/colorScheme", value);
        makeWindow();
        EXPECT_FALSE(isDark()) << value;
    }
}

TEST_F(ColorsInWindow, textOfProgramsFollowsAndTheSettingsKeepTheirDefaults)
{
    makeWindow();
    openProject();
    EXPECT_EQ(colorOfLine(0), QColor(0x808080));
    choose("Dark");
    settleLayout();
    EXPECT_EQ(colorOfLine(0), Colors::of(Colors::eFormatComment, Colors::eDark));
    EXPECT_EQ(readSetting("ModEditor/font/comment/color"), "#808080");
    EXPECT_EQ(readSetting("ModEditor/cursorBgColor"), "#e3ebf3");
    // Apply with the page of the editor in the dark stores the defaults again.
    module<ModConfigHookIf>()->openDialog("Editor");
    module<ModConfigHookIf>()->closeDialog(true);
    EXPECT_EQ(readSetting("ModEditor/font/comment/color"), "#808080");
    choose("Light");
    settleLayout();
    EXPECT_EQ(colorOfLine(0), QColor(0x808080));
}

TEST_F(ColorsInWindow, aFormatOfTheUserStaysInBothSchemes)
{
    writeSetting("ModEditor/font/comment/color", "#123456");
    makeWindow();
    openProject();
    EXPECT_EQ(colorOfLine(0), QColor(0x123456));
    choose("Dark");
    settleLayout();
    EXPECT_EQ(colorOfLine(0), QColor(0x123456));
    EXPECT_EQ(readSetting("ModEditor/font/comment/color"), "#123456");
}

TEST_F(ColorsInWindow, noWhiteBoxInTheDarkAndNoBlackOneInTheLight)
{
    makeWindow();
    openProject();
    window->resize(1280, 750);
    const QStringList pages{"Info",    "Sources", "Assembler", "Processor",  "Editor",       "Source Navi",
                            "Network", "Updates", "Help",      "Appearance", "All shortcuts"};
    for (const char* choice : {"at start", "Dark", "Light"}) {
        const bool dark = choice != std::string("Light");
        if (choice == std::string("at start")) {
            ASSERT_TRUE(closeWindow());
            writeSetting("ModGui/colorScheme", "2");
            makeWindow();
            openProject();
            window->resize(1280, 750);
        } else {
            choose(choice);
        }
        const std::string scheme = choice;
        EXPECT_LT(part(window->grab().toImage(), dark), 0.03) << scheme << " with a document";
        for (const QString& page : pages) {
            module<ModConfigHookIf>()->openDialog(page);
            auto* list = window->findChild<QListWidget*>("configList");
            ASSERT_NE(list, nullptr);
            EXPECT_EQ(list->currentItem()->text(), page);
            settleLayout();
            EXPECT_LT(part(window->grab().toImage(), dark), 0.03) << scheme << ' ' << page.toStdString();
        }
        module<ModConfigHookIf>()->closeDialog(false);
    }
}

TEST_F(ColorsInWindow, dialogsForFilesHaveTheLookOfTheWindow)
{
    writeSetting("ModGui/colorScheme", "2");
    makeWindow();
    openProject();
    QApplication::setActiveWindow(nullptr); // as right after another dialog
    QWidget* parent = nullptr;
    QColor ground;
    ModalAnswers answers({[&](QDialog* dialog) {
        parent = dialog->parentWidget();
        settleLayout();
        ground = QColor(dialog->grab().toImage().pixel(2, 2));
    }});
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->text() == "Open...")
            action->trigger();
    }
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(parent, window.get());
    EXPECT_EQ(ground, Colors::of(Colors::eGround, Colors::eDark));
}

TEST_F(ColorsInWindow, theInsertionMenuHasTheLookOfTheWindow)
{
    writeSetting("ModGui/colorScheme", "2");
    makeWindow();
    openProject();
    QPlainTextEdit* document = nullptr;
    for (QPlainTextEdit* edit : window->findChildren<QPlainTextEdit*>()) {
        if (edit->isVisible() && edit->toPlainText().startsWith("; a comment"))
            document = edit;
    }
    ASSERT_NE(document, nullptr);
    QString sheet;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr)
            return;
        for (const QAction* action : menu->actions()) {
            if (action->menu() != nullptr && action->text() == "Insert...")
                sheet = action->menu()->styleSheet();
        }
        menu->close();
    });
    look.start(1);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(20, 20), document->mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(document->viewport(), &event);
    EXPECT_FALSE(sheet.isEmpty());
    EXPECT_EQ(sheet, window->styleSheet());
}

TEST_F(ColorsInWindow, aSwitchUnderTheSettingsLosesNothingOfThem)
{
    makeWindow();
    openProject();
    module<ModConfigHookIf>()->openDialog("Editor");
    module<ModConfigHookIf>()->closeDialog(true);
    const auto settings = [this] {
        QMap<QString, QVariant> values;
        const QSettings file(settingsFile(), QSettings::IniFormat);
        for (const QString& key : file.allKeys()) {
            if (key.startsWith("ModEditor/") || key.startsWith("ModSrcNavi/") || key.startsWith("ModAction/"))
                values.insert(key, file.value(key));
        }
        return values;
    };
    const QMap<QString, QVariant> before = settings();
    ASSERT_GT(before.size(), 20);
    for (const bool dark : {true, false}) {
        module<ModConfigHookIf>()->openDialog("Editor");
        auto* list = window->findChild<QListWidget*>("configList");
        for (int row = 0; row < list->count(); ++row) {
            list->setCurrentRow(row);
            changeSystem(dark);
            changeSystem(!dark);
            changeSystem(dark);
        }
        EXPECT_EQ(isDark(), dark);
        module<ModConfigHookIf>()->closeDialog(true);
        const QMap<QString, QVariant> after = settings();
        for (auto it = before.cbegin(); it != before.cend(); ++it)
            EXPECT_EQ(after.value(it.key()), it.value()) << qPrintable(it.key());
    }
}

TEST_F(ColorsInWindow, aSwitchIsNoChangeOfTheSettingsThatEscapeWouldAskFor)
{
    makeWindow();
    openProject();
    const auto escape = [this] {
        auto* dialog = window->findChild<QWidget*>("configDialog");
        dialog->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        settleLayout();
    };
    for (const bool dark : {true, false}) {
        module<ModConfigHookIf>()->openDialog("Editor");
        changeSystem(dark);
        ModalAnswers answers({});
        escape();
        EXPECT_EQ(answers.seen(), 0);
        EXPECT_EQ(window->findChild<QWidget*>("configDialog"), nullptr);
    }
    // What the user has changed before is asked for after.
    module<ModConfigHookIf>()->openDialog("Editor");
    for (QAbstractButton* box : window->findChild<QWidget*>("configDialog")->findChildren<QAbstractButton*>()) {
        if (box->objectName() == "dynamicLineWrapEn")
            QTest::keyClick(box, Qt::Key_Space);
    }
    changeSystem(true);
    ModalAnswers answers({});
    escape();
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_NE(window->findChild<QWidget*>("configDialog"), nullptr);
}

TEST_F(ColorsInWindow, whatIsOpenFollows)
{
    makeWindow();
    openProject();
    const auto command = [this](const QString& text) {
        for (const QAction* bar : window->menuBar()->actions()) {
            for (QAction* action : bar->menu()->actions()) {
                if (action->text() == text && action->isEnabled())
                    return action->trigger();
            }
        }
        ADD_FAILURE() << "no command " << qPrintable(text);
    };
    command("Run assembler");
    command("Enable/disable simulator");
    for (const bool dark : {true, false}) {
        changeSystem(dark);
        command("Next instruction");
        EXPECT_LT(part(window->grab().toImage(), dark), 0.03) << dark;
    }
    command("Enable/disable simulator");
    for (const bool dark : {true, false}) {
        for (const char* opener : {"Open...", "Quick open...", "Open project..."}) {
            changeSystem(!dark);
            double wrong = 1;
            ModalAnswers answers({[&](QDialog* dialog) {
                settleLayout();
                changeSystem(dark);
                wrong = part(dialog->grab().toImage(), dark);
            }});
            command(opener);
            if (answers.seen() > 0) {
                EXPECT_LT(wrong, 0.03) << opener << dark;
            }
        }
    }
}
