// The table of colours, and what reads it.

#include "Colors.h"
#include "SchemeIcons.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>

#include <algorithm>

namespace {

class ColorsTest : public ::testing::Test
{
protected:
    ~ColorsTest() override { Colors::setScheme(Colors::eLight); }

    static QVector<Colors::sPair_t> allPairs()
    {
        QVector<Colors::sPair_t> result;
        for (const Colors::sPair_t& pair : Colors::pairs)
            result.append(pair);
        for (int format = Colors::firstFormat; format <= Colors::lastFormat; ++format) {
            for (Colors::eRole_t ground : Colors::editorGrounds)
                result.append({Colors::eRole_t(format), ground});
        }
        return result;
    }
    static bool mayBePale(Colors::eRole_t role)
    {
        return std::find(std::begin(Colors::paleInLight), std::end(Colors::paleInLight), role) !=
               std::end(Colors::paleInLight);
    }
    static double contrast(const Colors::sPair_t& pair, Colors::eScheme_t scheme)
    {
        return Colors::contrast(Colors::of(pair.text, scheme), Colors::of(pair.ground, scheme));
    }
    static std::string name(const Colors::sPair_t& pair)
    {
        return std::string(Colors::rows[pair.text].name) + " on " + Colors::rows[pair.ground].name;
    }
    /// The colour that fills the largest part of a picture.
    static QColor most(const QImage& image)
    {
        QHash<QRgb, int> counts;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) == 255)
                    ++counts[image.pixel(x, y)];
            }
        }
        QRgb best = 0;
        for (auto it = counts.cbegin(); it != counts.cend(); ++it)
            best = it.value() > counts.value(best) ? it.key() : best;
        return QColor(best);
    }
};

} // namespace

TEST_F(ColorsTest, contrastIsThatOfLuminances)
{
    EXPECT_NEAR(Colors::contrast(Qt::black, Qt::white), 21.0, 0.01);
    EXPECT_NEAR(Colors::contrast(Qt::white, Qt::black), 21.0, 0.01);
    EXPECT_NEAR(Colors::contrast(QColor(0x777777), Qt::white), 4.48, 0.01);
    EXPECT_NEAR(Colors::contrast(Qt::red, Qt::red), 1.0, 0.001);
}

TEST_F(ColorsTest, everyTextCanBeReadInTheDark)
{
    for (const Colors::sPair_t& pair : allPairs())
        EXPECT_GE(contrast(pair, Colors::eDark), Colors::leastContrast) << name(pair);
}

TEST_F(ColorsTest, everyTextCanBeReadInTheLightButForTheNamedOnes)
{
    QSet<int> pale;
    for (const Colors::sPair_t& pair : allPairs()) {
        if (contrast(pair, Colors::eLight) >= Colors::leastContrast)
            continue;
        EXPECT_TRUE(mayBePale(pair.text)) << name(pair) << ": " << contrast(pair, Colors::eLight);
        pale.insert(pair.text);
    }
    for (Colors::eRole_t role : Colors::paleInLight)
        EXPECT_TRUE(pale.contains(role)) << Colors::rows[role].name << " needs no exception";
}

TEST_F(ColorsTest, drawingsNameOneRoleEach)
{
    QSet<unsigned> lights;
    for (int role = Colors::firstOfDrawings; role < Colors::roleCount; ++role) {
        EXPECT_FALSE(lights.contains(Colors::rows[role].light)) << Colors::rows[role].name;
        lights.insert(Colors::rows[role].light);
    }
}

TEST_F(ColorsTest, formatsOfTextCanBeToldApartOnPaper)
{
    // Two dark colours that are equal come from equal light ones, or the way back is lost.
    for (int one = Colors::firstFormat; one <= Colors::lastFormat; ++one) {
        for (int other = one; other <= Colors::lastFormat; ++other) {
            if (Colors::rows[one].dark == Colors::rows[other].dark) {
                EXPECT_EQ(Colors::rows[one].light, Colors::rows[other].light) << Colors::rows[one].name;
            }
        }
    }
    Colors::setScheme(Colors::eDark);
    EXPECT_EQ(Colors::onPaper(Colors::of(Colors::eFormatAttr)), QColor(0xc18a46));
    EXPECT_EQ(Colors::onPaper(QColor(0x123456)), QColor(0x123456)) << "the user's own";
}

TEST_F(ColorsTest, aDefaultFollowsTheSchemeAndAUsersColourStays)
{
    const QColor own(0x123456);
    const QColor dflt(0x808080);
    EXPECT_EQ(Colors::shown(Colors::eFormatComment, dflt), dflt);
    Colors::setScheme(Colors::eDark);
    EXPECT_EQ(Colors::shown(Colors::eFormatComment, dflt), Colors::of(Colors::eFormatComment, Colors::eDark));
    EXPECT_EQ(Colors::shown(Colors::eFormatComment, own), own);
    EXPECT_EQ(Colors::stored(Colors::eFormatComment, Colors::of(Colors::eFormatComment)), dflt);
    EXPECT_EQ(Colors::stored(Colors::eFormatComment, own), own);
    QTextCharFormat format;
    format.setForeground(dflt);
    format.setFontItalic(true);
    const QTextCharFormat shown = Colors::shown(Colors::eFormatComment, format);
    EXPECT_EQ(shown.foreground().color(), Colors::of(Colors::eFormatComment, Colors::eDark));
    EXPECT_TRUE(shown.fontItalic());
    // The scheme changes while a page shows the dark one.
    Colors::setScheme(Colors::eLight);
    EXPECT_EQ(Colors::stored(Colors::eFormatComment, shown), format);
}

TEST_F(ColorsTest, aStyleSheetIsFilled)
{
    const QString sheet =
        QStringLiteral("a { color: @text; background: @page; b: @noRole; image: url(:/styles/x.png) }");
    EXPECT_EQ(Colors::filled(sheet),
              "a { color: #1f2933; background: #ffffff; b: @noRole; image: url(:/styles/x.png) }");
    Colors::setScheme(Colors::eDark);
    const QString dark = Colors::filled(sheet);
    EXPECT_TRUE(dark.contains("color: " + Colors::of(Colors::eText, Colors::eDark).name()));
    EXPECT_TRUE(dark.contains("url(:/dark/styles/x.png)"));
}

TEST_F(ColorsTest, theStyleSheetNamesRolesAndPicturesThatExist)
{
    for (Colors::eScheme_t scheme : {Colors::eLight, Colors::eDark}) {
        Colors::setScheme(scheme);
        const QString sheet = Colors::styleSheet();
        ASSERT_FALSE(sheet.isEmpty());
        const int comment = sheet.indexOf("*/");
        EXPECT_FALSE(sheet.mid(comment).contains('@')) << sheet.mid(sheet.indexOf('@', comment), 40).toStdString();
        static const QRegularExpression picture("url\\((:/[^)]+)\\)");
        int count = 0;
        for (auto it = picture.globalMatch(sheet); it.hasNext(); ++count) {
            const QString path = it.next().captured(1);
            EXPECT_TRUE(QFile::exists(path)) << path.toStdString();
        }
        EXPECT_GT(count, 20);
    }
}

TEST_F(ColorsTest, aChangeIsReportedOnce)
{
    QSignalSpy changed(Colors::instance(), &Colors::changed);
    Colors::setScheme(Colors::eLight);
    EXPECT_EQ(changed.size(), 0);
    Colors::setScheme(Colors::eDark);
    Colors::setScheme(Colors::eDark);
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(ColorsTest, anIconFollowsTheSchemeAfterItWasMade)
{
    const QIcon icon = SchemeIcons::of(QStringLiteral(":/ModEditor/img/file/document-new.png"));
    const QImage light = icon.pixmap(24, 24).toImage();
    EXPECT_EQ(most(light), Colors::of(Colors::eDrawingLine, Colors::eLight));
    const QIcon copy = icon;
    Colors::setScheme(Colors::eDark);
    for (const QIcon& one : {icon, copy}) {
        const QImage dark = one.pixmap(24, 24).toImage();
        EXPECT_EQ(dark.size(), light.size());
        EXPECT_EQ(most(dark), Colors::of(Colors::eDrawingLine, Colors::eDark));
    }
    EXPECT_NE(icon.pixmap(24, 24, QIcon::Disabled).toImage(), icon.pixmap(24, 24).toImage());
    EXPECT_EQ(icon.pixmap(16, 16).size(), QSize(16, 16));
    QImage target(24, 24, QImage::Format_ARGB32);
    target.fill(0);
    QPainter painter(&target);
    icon.paint(&painter, target.rect());
    painter.end();
    EXPECT_EQ(most(target), Colors::of(Colors::eDrawingLine, Colors::eDark));
    Colors::setScheme(Colors::eLight);
    EXPECT_EQ(icon.pixmap(24, 24).toImage(), light);
}

TEST_F(ColorsTest, anIconCanHaveAPictureOfItsOwnForAMode)
{
    QIcon icon = SchemeIcons::of(QStringLiteral(":/ModEditor/img/file/document-new.png"));
    QPixmap own(48, 48);
    own.fill(QColor(12, 34, 56));
    own.setDevicePixelRatio(2);
    icon.addPixmap(own, QIcon::Selected);
    for (const Colors::eScheme_t scheme : {Colors::eLight, Colors::eDark}) {
        Colors::setScheme(scheme);
        EXPECT_EQ(icon.pixmap(24, 24, QIcon::Selected).toImage().pixelColor(12, 12), QColor(12, 34, 56));
        EXPECT_NE(icon.pixmap(24, 24).toImage().pixelColor(12, 12), QColor(12, 34, 56));
    }
}

TEST_F(ColorsTest, anIconOfEverySchemeStaysAsItIs)
{
    const QIcon icon = SchemeIcons::always(QStringLiteral(":/ModEditor/img/file/document-new.png"));
    const QImage light = icon.pixmap(24, 24).toImage();
    EXPECT_EQ(light, QImage(":/ModEditor/img/file/document-new.png").convertToFormat(light.format()));
    Colors::setScheme(Colors::eDark);
    EXPECT_EQ(icon.pixmap(24, 24).toImage(), light);
}

TEST_F(ColorsTest, anIconFromElsewhereIsLeftAlone)
{
    const QIcon icon = SchemeIcons::of(QStringLiteral(":/there/is/none.png"));
    EXPECT_TRUE(icon.isNull());
    EXPECT_TRUE(icon.pixmap(24, 24).isNull());
    EXPECT_EQ(Colors::picture(":/there/is/none.png"), ":/there/is/none.png");
}

TEST_F(ColorsTest, thePaletteCanBeReadEnabledAndDisabled)
{
    for (Colors::eScheme_t scheme : {Colors::eLight, Colors::eDark}) {
        Colors::setScheme(scheme);
        const QPalette palette = Colors::palette();
        const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
            {QPalette::WindowText, QPalette::Window},  {QPalette::Text, QPalette::Base},
            {QPalette::ButtonText, QPalette::Button},  {QPalette::ToolTipText, QPalette::ToolTipBase},
            {QPalette::Text, QPalette::AlternateBase}, {QPalette::PlaceholderText, QPalette::Base},
            {QPalette::Link, QPalette::Base},          {QPalette::HighlightedText, QPalette::Highlight},
        };
        for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto& pair : pairs) {
                if (group == QPalette::Disabled && pair.second == QPalette::Highlight)
                    continue;
                EXPECT_GE(Colors::contrast(palette.color(group, pair.first), palette.color(group, pair.second)),
                          Colors::leastContrast)
                    << "group " << group << ", " << pair.first << " on " << pair.second;
            }
        }
    }
}
