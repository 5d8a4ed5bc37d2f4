// Pictures of the main states in both schemes, at several scales, fonts and sizes of the window, for a person to look
// at. What a program can see is checked: the window keeps its size, and where there is room, no text is cut off or
// unpainted.

#include "Contrast.h"
#include "ExampleFolder.h"
#include "MainWindowFixture.h"

#include "Colors.h"
#include "HlpWidget.h"
#include "ModConfigHookIf.h"
#include "ModEditorHookIf.h"
#include "ModPrj.h"

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QProcessEnvironment>
#include <QPushButton>

namespace {

const char* const lookVariable = "NALVO_LOOK"; ///< scheme, points of the font, size of the window: "dark 14 1024x700"

struct sLook_t
{
    const char* scale;
    const char* look;
};

class Looks : public MainWindowFixture
{
protected:
    Looks() { copyFolder(NALVO_SOURCE_DIR "/examples", projectDir()); }
    ~Looks() override
    {
        window.reset();
        Colors::setScheme(Colors::eLight);
        QApplication::setPalette(QPalette());
        QApplication::setFont(m_font);
    }

    void setLook(const QString& look)
    {
        const QStringList parts = look.split(' ');
        ASSERT_EQ(parts.size(), 3);
        m_scheme = parts.at(0);
        QFont font = QApplication::font();
        font.setPointSize(parts.at(1).toInt());
        QApplication::setFont(font);
        const QStringList size = parts.at(2).split('x');
        m_size = QSize(size.at(0).toInt(), size.at(1).toInt());
        // In less room a part of a dock is cut off, which is for the person to judge.
        m_isRoomy = m_size.width() >= 2560 || (m_size.width() >= 1280 && parts.at(1).toInt() < 14);
        m_isRoomy = m_isRoomy && qFuzzyCompare(qApp->devicePixelRatio(), 1.0);
        m_name = QString(look).replace(' ', '-') + QStringLiteral("-%1").arg(qRound(qApp->devicePixelRatio() * 100));
        writeSetting("ModGui/colorScheme", m_scheme == "dark" ? "2" : "1");
        writeSetting("ModGui/width", size.at(0));
        writeSetting("ModGui/height", size.at(1));
    }
    void take(const QString& state)
    {
        settleAnimations();
        window->resize(m_size);
        settleLayout();
        picture(state, window.get());
        EXPECT_LE(window->width(), m_size.width()) << state.toStdString() << " makes the window grow";
        EXPECT_LE(window->height(), m_size.height()) << state.toStdString() << " makes the window grow";
        SCOPED_TRACE((m_scheme + ' ' + state).toStdString());
        if (m_isRoomy) {
            EXPECT_GT(expectContrast(window.get(), window->grab().toImage()), 2);
        }
    }
    void picture(const QString& state, QWidget* widget)
    {
        SCOPED_TRACE((m_name + ' ' + state).toStdString());
        const QString name = QStringLiteral("look-%1-%2").arg(state, m_name);
        if (m_isRoomy)
            screenshot(name, widget);
        else
            EXPECT_TRUE(widget->grab().save(QStringLiteral(NALVO_BINARY_DIR "/screenshots/%1.png").arg(name)));
    }
    bool trigger(const QString& text) const
    {
        for (const QAction* bar : window->menuBar()->actions()) {
            for (QAction* action : bar->menu()->actions()) {
                if (action->text() == text && action->isEnabled()) {
                    action->trigger();
                    settleLayout();
                    return true;
                }
            }
        }
        return false;
    }
    void openExample()
    {
        ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/uart_monitor/uart_monitor.nalvo"));
        settleLayout();
    }

    void takeStates()
    {
        makeWindow();
        take("start");
        ASSERT_TRUE(trigger("New project..."));
        take("new-project");
        QTest::mouseClick(window->findChild<QPushButton*>("buttonCancel"), Qt::LeftButton);
        settleLayout();
        ASSERT_TRUE(trigger("Online Help"));
        auto* help = window->findChild<nsModHlp::HlpWidget*>();
        ASSERT_NE(help, nullptr);
        ASSERT_TRUE(QTest::qWaitFor([help] { return !help->title().isEmpty(); }, 60000));
        take("help");
        openExample();
        take("project");
        module<ModEditorHookIf>()->openFile(projectDir() + "/uart_monitor/src/main.psm");
        settleLayout();
        ASSERT_TRUE(trigger("Find"));
        take("find");
        ASSERT_TRUE(trigger("Run assembler"));
        ASSERT_TRUE(trigger("Enable/disable simulator"));
        for (int step = 0; step < 6; ++step)
            trigger("Next instruction");
        take("simulation");
        ASSERT_TRUE(trigger("Enable/disable simulator"));
        for (QPlainTextEdit* edit : window->findChildren<QPlainTextEdit*>()) {
            if (edit->isVisible() && edit->accessibleName() == "Text of the document")
                edit->appendPlainText("        LOAD    s0, nowhere\n        LOAD\n");
        }
        ASSERT_TRUE(trigger("Save all"));
        take("errors");
        for (const char* page : {"Processor", "Assembler", "Editor", "Appearance", "All shortcuts"}) {
            module<ModConfigHookIf>()->openDialog(page);
            take(QStringLiteral("settings-") + QString(page).remove(' '));
        }
        module<ModConfigHookIf>()->closeDialog(false);
        ASSERT_TRUE(trigger("Import files..."));
        take("import");
        takeDialogs();
    }
    void takeDialogs()
    {
        QMessageBox box(QMessageBox::Question, "Configuration", "The values on these pages have been changed.",
                        QMessageBox::Discard | QMessageBox::Cancel, window.get());
        box.show();
        settleLayout();
        picture("question", &box);
        QFileDialog files(window.get(), "Open file", projectDir());
        files.setOption(QFileDialog::DontUseNativeDialog);
        files.show();
        settleLayout();
        // Its labels shorten their texts by themselves.
        files.grab().save(QStringLiteral(NALVO_BINARY_DIR "/screenshots/look-files-%1.png").arg(m_name));
        QMenu* menu = window->menuBar()->actions().at(1)->menu();
        menu->popup(window->mapToGlobal(QPoint(20, 20)));
        settleLayout();
        menu->grab().save(QStringLiteral(NALVO_BINARY_DIR "/screenshots/look-menu-%1.png").arg(m_name));
        menu->close();
    }

    QFont m_font = QApplication::font();
    QString m_scheme;
    QString m_name;
    QSize m_size;
    bool m_isRoomy = true; ///< every text must be whole
};

/// At another scale of the screen, which is set before a program starts: the test runs itself.
class LooksAtScale : public ::testing::TestWithParam<sLook_t>
{
};

} // namespace

/// Alone it takes the pictures at the scale of this screen; the tests below run it for the others.
TEST_F(Looks, mainStates)
{
    const QString look = qEnvironmentVariable(lookVariable, "dark 10 1280x750");
    setLook(look);
    takeStates();
}

TEST_P(LooksAtScale, mainStates)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", GetParam().scale);
    environment.insert(lookVariable, GetParam().look);
    for (const char* name : {"GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX", "GTEST_OUTPUT"})
        environment.remove(name);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=Looks.mainStates"});
    ASSERT_TRUE(process.waitForFinished(600000));
    const QByteArray output = process.readAll();
    EXPECT_EQ(process.exitCode(), 0) << output.right(6000).constData();
    EXPECT_TRUE(output.contains("1 test from")) << output.constData();
}

INSTANTIATE_TEST_SUITE_P(
    All, LooksAtScale,
    ::testing::Values(sLook_t{"1", "light 9 1024x700"}, sLook_t{"1", "dark 9 1024x700"},
                      sLook_t{"1", "light 14 1024x700"}, sLook_t{"1", "dark 14 2560x1440"},
                      sLook_t{"1", "light 10 2560x1440"}, sLook_t{"1", "light 10 1280x750"},
                      sLook_t{"1.5", "light 9 1280x750"}, sLook_t{"1.5", "dark 14 1024x700"},
                      sLook_t{"2", "light 14 1280x750"}, sLook_t{"2", "dark 9 1024x700"}),
    [](const ::testing::TestParamInfo<sLook_t>& one) {
        return QString("%1 %2").arg(one.param.scale, one.param.look).remove('.').replace(' ', '_').toStdString();
    });
