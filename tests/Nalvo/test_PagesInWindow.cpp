// Settings that the user makes in the real window: applied, written, and there again in the next run of the program.

#include "MainWindowFixture.h"

#include "ModConfigHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "QtPrinters.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

namespace {

class PagesInWindow : public MainWindowFixture
{
protected:
    PagesInWindow()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
    }
    QString makePrj(const QString& name)
    {
        return writeFile(name, "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo></project>");
    }
    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    void openPage(const QString& title) const { module<ModConfigHookIf>()->openDialog(title); }
    template <class Widget>
    Widget* inDialog(const QString& name) const
    {
        return window->findChild<QWidget*>("configDialog")->findChild<Widget*>(name);
    }
    QWidget* manager() const { return window->findChild<QWidget*>("prjMngr"); }
    void press(QWidget* page, const QString& text) const
    {
        for (QPushButton* button : page->findChildren<QPushButton*>()) {
            if (button->text() == text && button->isVisible()) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << qPrintable(text);
    }
    void pressInDialog(const QString& text) const { press(window->findChild<QWidget*>("configDialog"), text); }
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace

TEST_F(PagesInWindow, TheProcessorIsChosenAndStays)
{
    const QString file = makePrj("p.nalvo");
    ASSERT_TRUE(prj()->open(file));
    openPage("Processor");
    auto* processor = inDialog<QComboBox>("processor");
    ASSERT_NE(processor, nullptr);
    processor->setFocus();
    for (int i = 0; i < 3 && processor->currentText() != "Xilinx PicoBlaze 6"; ++i)
        QTest::keyClick(processor, Qt::Key_Down);
    auto* vector = inDialog<QSpinBox>("intVectorAddr");
    ASSERT_TRUE(vector->isVisible());
    vector->setFocus();
    QTest::keyClick(vector, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(vector, "511");
    screenshot("config-processor");
    pressInDialog("Apply and close");
    for (const char* line : {"<processor>Xilinx PicoBlaze 6</processor>", "<intVectorAddr>511</intVectorAddr>"})
        EXPECT_TRUE(content(file).contains(line)) << line << '\n' << content(file).constData();
    ASSERT_TRUE(closeWindow());

    makeWindow();
    ASSERT_TRUE(prj()->open(file));
    openPage("Processor");
    EXPECT_EQ(inDialog<QComboBox>("processor")->currentText(), "Xilinx PicoBlaze 6");
    EXPECT_EQ(inDialog<QSpinBox>("intVectorAddr")->value(), 511);
    // Cancel changes nothing.
    inDialog<QComboBox>("processor")->setFocus();
    QTest::keyClick(inDialog<QComboBox>("processor"), Qt::Key_Home);
    const QByteArray before = content(file);
    pressInDialog("&Cancel");
    prj()->savePrjCfg();
    EXPECT_EQ(content(file), before);
    EXPECT_TRUE(closeWindow());
}

TEST_F(PagesInWindow, TheEditorsSettingsAreWrittenOnApply)
{
    openPage("Editor");
    auto* indent = inDialog<QSpinBox>("tabIndent");
    ASSERT_NE(indent, nullptr);
    indent->setFocus();
    QTest::keyClick(indent, Qt::Key_Up);
    screenshot("config-editor");
    pressInDialog("Apply and close");
    EXPECT_EQ(readSetting("ModEditor/tabIndent"), "5") << "at once, not only at the end";
    openPage("Source Navi");
    auto* location = inDialog<QComboBox>("naviWidgetLocation");
    ASSERT_NE(location, nullptr);
    location->setFocus();
    QTest::keyClick(location, Qt::Key_End);
    screenshot("config-navigator");
    pressInDialog("Apply and close");
    EXPECT_EQ(readSetting("ModSrcNavi/naviWidgetLocation"), "2");
    QWidget* panel = window->findChild<QWidget*>("codeNavi")->parentWidget();
    EXPECT_TRUE(module<ModGuiHookIf>()->hasWidget(ModGuiHookIf::eLocationDockRight, panel));
    ASSERT_TRUE(closeWindow());
    makeWindow();
    openPage("Editor");
    EXPECT_EQ(inDialog<QSpinBox>("tabIndent")->value(), 5);
    panel = window->findChild<QWidget*>("codeNavi")->parentWidget();
    EXPECT_TRUE(module<ModGuiHookIf>()->hasWidget(ModGuiHookIf::eLocationDockRight, panel));
    EXPECT_TRUE(closeWindow());
}

TEST_F(PagesInWindow, AProjectIsCollectedAndOpenedFromTheStartPage)
{
    const QString file = makePrj("p.nalvo");
    ASSERT_NE(manager(), nullptr);
    ASSERT_TRUE(manager()->isVisible());
    auto* edit = manager()->findChild<QWidget*>("prjMngrOpenFile")->findChild<QLineEdit*>();
    EXPECT_TRUE(edit->hasFocus()) << "one can type at once";
    QTest::keyClicks(edit, file);
    press(manager(), "Add project to collection");
    press(manager(), "Save project manager configuration and close");
    EXPECT_EQ(readSetting("PrjMngr/collection"), file);
    ASSERT_TRUE(closeWindow());

    makeWindow();
    QCoreApplication::processEvents();
    ASSERT_NE(manager(), nullptr);
    screenshot("prj-manager-in-window");
    press(manager(), "Open");
    EXPECT_TRUE(prj()->isValid());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(manager(), nullptr);
    EXPECT_TRUE(closeWindow());
    EXPECT_FALSE(prj()->isValid());
}
