// Every key of the settings file and of the project file: that it is there, its form, its default, and its way there
// and back.

#include "KeyTable.h"
#include "MainWindowFixture.h"

#include "ModPrj.h"
#include "QtPrinters.h"

#include <QStyle>
#include <QWindow>

#include <string>

namespace {

const char* const processors[] = {"", "Xilinx PicoBlaze 3", "Xilinx PicoBlaze 6", "Lattice Mico8 v3.x"};
/// Only one page of the centre is the current one: here it is a document, and no help page.
const char* const alwaysEmpty = "ModHlp/currentFile";
const char* const keyProcessor = "ModProcessor/processor";

KeyTable joined(const KeyTable& first, const KeyTable& second)
{
    KeyTable result = first;
    result.insert(result.end(), second.begin(), second.end());
    return result;
}

KeyValues defaults(const KeyTable& keys)
{
    KeyValues result;
    for (const sKey_t& key : keys)
        result.insert(key.key, key.dflt);
    return result;
}

/// Which keys differ from their defaults in a round: those whose index has a bit set. So any two keys differ in some
/// round, and one that reads or writes the place of another one is seen. The round after the last bit has all of them.
int roundsOf(const KeyTable& keys)
{
    int rounds = 1;
    for (std::size_t count = 1; count < keys.size(); count *= 2)
        ++rounds;
    return rounds;
}

KeyValues othersOf(const KeyTable& keys, int round)
{
    KeyValues result;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (((i >> round) & 1) != 0 || round == roundsOf(keys) - 1)
            result.insert(keys[i].key, keys[i].other);
    }
    return result;
}

KeyValues overlaid(KeyValues values, const KeyValues& above)
{
    for (auto it = above.cbegin(); it != above.cend(); ++it)
        values.insert(it.key(), it.value());
    return values;
}

/// Names each key on its own that is missing, too much, or of another value.
void expectSame(const KeyValues& found, const KeyValues& expected)
{
    for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
        EXPECT_TRUE(found.contains(it.key())) << "not stored: " << qPrintable(it.key());
        EXPECT_EQ(found.value(it.key()), it.value()) << qPrintable(it.key());
    }
    for (auto it = found.cbegin(); it != found.cend(); ++it)
        EXPECT_TRUE(expected.contains(it.key())) << "not in the table: " << qPrintable(it.key());
}

class AllKeys : public MainWindowFixture
{
protected:
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// The settings in the file. The platform of the tests moves a window at the border of the screen inwards by the
    /// width of a frame, which is taken back here.
    KeyValues settings() const
    {
        KeyValues values = parseSettings(content(settingsFile()));
        const QMargins frame = window->windowHandle()->frameMargins();
        if (values.value("ModGui/x") == QString::number(frame.left()))
            values.insert("ModGui/x", "0");
        if (values.value("ModGui/y") == QString::number(frame.top()))
            values.insert("ModGui/y", "0");
        // A window at the upper border of the screen comes down until its title bar can be seen.
        if (values.value("ModGui/y") == QString::number(window->style()->pixelMetric(QStyle::PM_TitleBarHeight)))
            values.insert("ModGui/y", "0");
        // What docks and tool bars look like is no value for this table.
        EXPECT_FALSE(values.take("ModGui/state").isEmpty());
        // An empty list stands as nothing. It has tests of its own.
        values.remove("ModAction/shortcuts");
        // It has one value alone.
        EXPECT_EQ(values.take("ModSwUpdate/hadStart"), "1");
        return values;
    }
    /// Starts the program on these settings alone, and closes it.
    void startAndStop(const KeyValues& values)
    {
        window.reset();
        QFile::remove(settingsFile());
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            writeSetting(it.key(), it.value());
        makeWindow();
        ASSERT_TRUE(closeWindow());
    }
    /// Opens a project with these elements alone, and closes it. @return the elements after that
    KeyValues openAndClose(const KeyValues& values)
    {
        writeFile("main.psm", "start: LOAD s0, 0\n");
        writeFile("more.psm", "; more\n");
        const QString path = writeFile("keys.nalvo", projectOf(values));
        auto* prj = module<nsModPrj::ModPrj>();
        EXPECT_TRUE(prj->openPrj(path));
        EXPECT_TRUE(prj->closePrj());
        return parseProject(content(path));
    }
};

class ProjectKeys : public AllKeys, public ::testing::WithParamInterface<const char*>
{
protected:
    KeyTable keys() const { return joined(projectKeys(), processorKeys(GetParam())); }
    /// What every project of this processor has.
    KeyValues allDefaults() const
    {
        KeyValues values = overlaid(defaults(keys()), defaults(documentKeys()));
        values.insert(keyProcessor, GetParam());
        return values;
    }
    KeyValues withProcessor(KeyValues values) const
    {
        if (*GetParam() != '\0')
            values.insert(keyProcessor, GetParam());
        return values;
    }
};

} // namespace

TEST_F(AllKeys, theTableSaysWhatItMeans)
{
    KeyTable keys = joined(joined(settingsKeys(), projectKeys()), joined(imageKeys(), documentKeys()));
    for (const char* processor : processors)
        keys = joined(keys, processorKeys(processor));
    for (const sKey_t& key : keys) {
        EXPECT_TRUE(isOfType(key, key.dflt)) << key.key << ' ' << key.dflt;
        EXPECT_TRUE(isOfType(key, key.other)) << key.key << ' ' << key.other;
        if (QByteArray(key.key) != alwaysEmpty) {
            EXPECT_STRNE(key.dflt, key.other) << key.key << " would not show whether it is read";
        }
    }
    EXPECT_EQ(std::size_t(defaults(settingsKeys()).size()), settingsKeys().size()) << "no key twice";
    EXPECT_EQ(std::size_t(defaults(projectKeys()).size()), projectKeys().size());
}

TEST_F(AllKeys, firstStartStoresTheDefaults)
{
    startAndStop({});
    // The collection of projects is empty, and what is empty is not stored.
    expectSame(settings(), defaults(settingsKeys()));
}

TEST_F(AllKeys, settingsSurviveAStartAndAStop)
{
    const KeyTable& keys = settingsKeys();
    for (int round = 0; round < roundsOf(keys); ++round) {
        SCOPED_TRACE(round);
        const KeyValues others = othersOf(keys, round);
        startAndStop(others);
        expectSame(settings(), overlaid(defaults(keys), others));
    }
}

TEST_F(AllKeys, theCollectionKeepsTheProjectsThatExist)
{
    const QString one = writeFile("one.nalvo", projectOf({{"PrjInfo/title", "One"}}));
    const QString two = writeFile("a:b.nalvo", projectOf({{"PrjInfo/title", "Two"}}));
    const QString stored = one + ':' + QString(two).replace(":", "&#58;");
    startAndStop({{"PrjMngr/collection", stored + ':' + projectDir() + "/gone.nalvo"}});
    EXPECT_EQ(readSetting("PrjMngr/collection"), stored);
    KeyValues expected = defaults(settingsKeys());
    expected.insert("PrjMngr/collection", settings().value("PrjMngr/collection"));
    expectSame(settings(), expected);
}

TEST_F(AllKeys, anEmptySettingIsItsDefaultAgain)
{
    KeyValues empty;
    for (const sKey_t& key : settingsKeys()) {
        if (std::string(key.type) == "font")
            empty.insert(key.key, QString());
    }
    ASSERT_FALSE(empty.isEmpty());
    startAndStop(empty);
    expectSame(settings(), defaults(settingsKeys()));
}

/// Each key on its own is a reason to keep its kind, and no other kind.
TEST_F(AllKeys, aKeyOfAnImageKeepsItsKind)
{
    makeWindow();
    for (const sKey_t& key : imageKeys()) {
        const QString kind = QString(key.key).section('/', 0, 1) + '/';
        KeyValues expected;
        for (const sKey_t& other : imageKeys()) {
            if (QString(other.key).startsWith(kind))
                expected.insert(other.key, other.dflt);
        }
        expected.insert(key.key, key.other);
        KeyValues found = openAndClose({{key.key, key.other}});
        for (const QString& name : found.keys()) {
            if (!name.startsWith("Outputs/"))
                found.remove(name);
        }
        expectSame(found, expected);
    }
}

TEST_P(ProjectKeys, aNewProjectGetsTheDefaults)
{
    startAndStop({});
    makeWindow();
    expectSame(openAndClose(withProcessor({})), allDefaults());
}

TEST_P(ProjectKeys, surviveOpeningAndClosing)
{
    makeWindow();
    for (int round = 0; round < roundsOf(keys()); ++round) {
        SCOPED_TRACE(round);
        const KeyValues others = withProcessor(othersOf(keys(), round));
        // The width of a tab goes on from project to project where a project says none.
        const KeyValues written = overlaid({{"ModEditor/tabIndent", "4"}}, others);
        expectSame(openAndClose(written), overlaid(allDefaults(), others));
    }
}

TEST_P(ProjectKeys, imagesSurvive)
{
    makeWindow();
    const KeyTable& keys = imageKeys();
    for (int round = 0; round < roundsOf(keys); ++round) {
        SCOPED_TRACE(round);
        // A kind of which one key is there is stored as a whole.
        const KeyValues images = overlaid(defaults(keys), othersOf(keys, round));
        expectSame(openAndClose(withProcessor(images)), overlaid(allDefaults(), images));
    }
}

TEST_P(ProjectKeys, openDocumentsSurvive)
{
    makeWindow();
    // Files of the project: nobody is asked whether to add them.
    KeyValues values = overlaid(othersOf(documentKeys(), roundsOf(documentKeys()) - 1), withProcessor({}));
    values.insert("sources/srcFiles", "main.psm:more.psm");
    expectSame(openAndClose(values), overlaid(allDefaults(), values));
}

INSTANTIATE_TEST_SUITE_P(processors, ProjectKeys, ::testing::ValuesIn(processors));
