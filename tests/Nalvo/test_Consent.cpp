// A project that names output files outside of its folder is asked for once.

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "ModAsmFe.h"
#include "ModConfig.h"
#include "ModPrj.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

using nsModAsmFe::AsmFeConfig;

namespace {

class Consent : public MainWindowFixture
{
protected:
    QString outside(const QString& name) const { return QDir(m_other.path()).canonicalPath() + '/' + name; }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    QString makeProject(const QByteArray& source, const QString& hexFile)
    {
        writeFile("main.psm", source);
        const QString off = "<%1><en>0</en><writeFileEventBut1>0</writeFileEventBut1></%1>";
        const QString text = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<project version=\"3\">\n"
                             "<sources><srcFiles>main.psm</srcFiles></sources>\n<AsmFe><target>" +
                             off.arg("vhdl") + off.arg("verilog") + off.arg("mem") +
                             "<hex><en>1</en><writeFileEventBut1>1</writeFileEventBut1><outputFile>" + hexFile +
                             "</outputFile></hex></target></AsmFe>\n"
                             "<ModProcessor><processor>Xilinx PicoBlaze 3</processor></ModProcessor>\n</project>\n";
        return writeFile("p.nalvo", text.toUtf8());
    }
    static QByteArray source() { return "        LOAD s0, 1\n#ORG ADDR, 0x3FF\nvector: JUMP vector\n"; }
    static QByteArray sourceWithDevice(const QString& file)
    {
        return QString("#SET IODEV::rom::EN, TRUE\n#SET IODEV::rom::SIZE, 2\n#SET IODEV::rom::VALUE, 0: 1, 2\n"
                       "#SET IODEV::rom::HEXEN, TRUE\n#SET IODEV::rom::HEXTARGETFILE, \"%1\"\n")
                   .arg(file)
                   .toUtf8() +
               source();
    }
    nsModAsmFe::ModAsmFe* assembler() const { return module<nsModAsmFe::ModAsmFe>(); }
    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    void run() { assembler()->assemble(AsmFeConfig::eEventButton1); }
    static QString actOf(QDialog* dialog) { return dialog->findChild<QPlainTextEdit*>("consentAct")->toPlainText(); }
    bool isRefused() const { return messageTexts().filter("is not allowed").size() == 1; }

    QTemporaryDir m_other;
};

TEST_F(Consent, yesIsAskedOnce)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject(source(), outside("out.hex"))));
    QString act;
    {
        ModalAnswers answers({[&](QDialog* dialog) {
            act = actOf(dialog);
            screenshot("consent", dialog);
            QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Yes), Qt::LeftButton);
        }});
        run();
        EXPECT_EQ(answers.seen(), 1);
    }
    EXPECT_EQ(act, outside("out.hex"));
    EXPECT_TRUE(contentOf(outside("out.hex")).startsWith("00001\n"));
    QFile::remove(outside("out.hex"));
    ModalAnswers none({});
    run();
    EXPECT_EQ(none.seen(), 0);
    EXPECT_TRUE(QFile::exists(outside("out.hex")));
}

TEST_F(Consent, theAnswerOutlivesTheWindow)
{
    makeWindow();
    const QString file = makeProject(source(), outside("out.hex"));
    ASSERT_TRUE(prj()->openPrj(file));
    {
        ModalAnswers answers({[](QDialog* dialog) { dialog->accept(); }});
        run();
        ASSERT_EQ(answers.seen(), 1);
    }
    closeWindow();
    QFile::remove(outside("out.hex"));
    makeWindow();
    ModalAnswers none({});
    ASSERT_TRUE(prj()->openPrj(file));
    run();
    EXPECT_EQ(none.seen(), 0);
    EXPECT_TRUE(QFile::exists(outside("out.hex")));
}

class ConsentKeys : public Consent, public ::testing::WithParamInterface<Qt::Key>
{
};

TEST_P(ConsentKeys, answersNoAndTheNoIsKept)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject(source(), outside("out.hex"))));
    {
        ModalAnswers answers({[](QDialog* dialog) {
            QWidget* focus = QApplication::focusWidget();
            QTest::keyClick(focus != nullptr ? focus : dialog, GetParam());
        }});
        run();
        EXPECT_EQ(answers.seen(), 1);
    }
    EXPECT_FALSE(QFile::exists(outside("out.hex")));
    EXPECT_TRUE(isRefused()) << messageTexts().join('\n').toStdString();
    ModalAnswers none({});
    messageView()->clear();
    run();
    EXPECT_EQ(none.seen(), 0);
    EXPECT_FALSE(QFile::exists(outside("out.hex")));
    EXPECT_TRUE(isRefused());
}

INSTANTIATE_TEST_SUITE_P(Keys, ConsentKeys, ::testing::Values(Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape),
                         [](const auto& test) { return QKeySequence(test.param).toString().toStdString(); });

TEST_F(Consent, whatASourceNamesIsAskedFor)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject(sourceWithDevice(outside("device.hex")), "inside.hex")));
    QString act;
    ModalAnswers answers({[&](QDialog* dialog) {
        act = actOf(dialog);
        dialog->reject();
    }});
    run();
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(act, outside("device.hex"));
    EXPECT_FALSE(QFile::exists(outside("device.hex")));
    EXPECT_TRUE(isRefused());
}

// A folder of the project becomes a link while the user reads the question about another file.
TEST_F(Consent, aPlaceThatChangesUnderTheQuestionIsNotWritten)
{
    makeWindow();
    QTemporaryDir third;
    ASSERT_TRUE(QFile::link(m_other.path(), projectDir() + "/link"));
    ASSERT_TRUE(prj()->openPrj(makeProject(sourceWithDevice(projectDir() + "/sub/device.hex"), "link/out.hex")));
    QDir(projectDir()).mkdir("sub");
    const auto relink = [&](const QString& name) {
        QFile::remove(projectDir() + '/' + name);
        QDir(projectDir()).rmdir(name);
        ASSERT_TRUE(QFile::link(third.path(), projectDir() + '/' + name));
    };
    ModalAnswers answers({[&](QDialog* dialog) {
        relink("link");
        relink("sub");
        dialog->accept();
    }});
    run();
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(QDir(third.path()).entryList(QDir::Files), QStringList());
    EXPECT_TRUE(isRefused()) << messageTexts().join('\n').toStdString();
}

TEST_F(Consent, insideNothingIsAsked)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject(source(), "inside.hex")));
    ModalAnswers none({});
    run();
    EXPECT_EQ(none.seen(), 0);
    EXPECT_TRUE(QFile::exists(projectDir() + "/inside.hex"));
}

TEST_F(Consent, aSaveWithoutOutputsAsksNothing)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject(source(), outside("out.hex"))));
    ModalAnswers none({});
    assembler()->assemble(AsmFeConfig::eEventSave);
    EXPECT_EQ(none.seen(), 0);
}

TEST_F(Consent, aTypedPathIsNotAskedForButAForeignOneIs)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject(source(), outside("foreign.hex"))));
    auto* config = module<nsModConfig::ModConfig>();
    // Applied settings in which the user has not touched the path: it remains a foreign one.
    config->openDialog("Assembler");
    config->closeDialog(true);
    {
        ModalAnswers answers({[](QDialog* dialog) { dialog->reject(); }});
        run();
        EXPECT_EQ(answers.seen(), 1);
    }
    config->openDialog("Assembler");
    auto* edit =
        window->findChild<QWidget*>("targetHex")->findChild<QWidget*>("targetOutputFile")->findChild<QLineEdit*>();
    ASSERT_NE(edit, nullptr);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, outside("typed.hex"));
    config->closeDialog(true);
    ModalAnswers none({});
    run();
    EXPECT_EQ(none.seen(), 0);
    EXPECT_TRUE(QFile::exists(outside("typed.hex")));
    EXPECT_FALSE(QFile::exists(outside("foreign.hex")));
}

// What comes last must not hide below what looks harmless.
TEST_F(Consent, aLongTextSaysThatItIsLonger)
{
    makeWindow();
    const QString name = QString("harmless").repeated(25) + ".hex";
    QByteArray devices;
    for (int i = 0; i < 20; ++i) {
        QByteArray device =
            sourceWithDevice(outside(QString::number(i) + name)).replace("rom", "rom" + QByteArray::number(i));
        devices += device.left(device.indexOf("        LOAD"));
    }
    ASSERT_TRUE(prj()->openPrj(makeProject(devices + source(), "inside.hex")));
    bool saysSo = false;
    bool scrolls = false;
    QString act;
    {
        ModalAnswers answers({[&](QDialog* dialog) {
            screenshot("consent-long", dialog);
            act = actOf(dialog);
            saysSo = dialog->findChild<QLabel*>("consentMore") != nullptr;
            scrolls = dialog->findChild<QPlainTextEdit*>("consentAct")->verticalScrollBar()->maximum() > 0;
            EXPECT_LE(dialog->height(), 600);
        }});
        run();
    }
    EXPECT_EQ(act.count('\n'), 19);
    EXPECT_TRUE(scrolls);
    EXPECT_TRUE(saysSo);
    prj()->closePrj();
    ASSERT_TRUE(prj()->openPrj(makeProject(source(), outside("short.hex"))));
    ModalAnswers one({[&](QDialog* dialog) { saysSo = dialog->findChild<QLabel*>("consentMore") != nullptr; }});
    run();
    EXPECT_EQ(one.seen(), 1);
    EXPECT_FALSE(saysSo);
}

TEST_F(Consent, controlCharactersAreShownByTheirNumbers)
{
    makeWindow();
    const QString name = QString("plain") + QChar(0x202e) + "hex.exe";
    ASSERT_TRUE(prj()->openPrj(makeProject(source(), outside(name))));
    QString act;
    ModalAnswers answers({[&](QDialog* dialog) {
        act = actOf(dialog);
        dialog->reject();
    }});
    run();
    EXPECT_EQ(act, outside("plain\\u202ehex.exe"));
}

TEST_F(Consent, theProjectIsClosedUnderTheQuestion)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject(source(), outside("out.hex"))));
    ModalAnswers answers({[&](QDialog* dialog) {
        prj()->closePrj();
        dialog->accept();
    }});
    run();
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_FALSE(assembler()->isAssembled());
}

} // namespace
