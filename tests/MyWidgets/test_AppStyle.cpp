#include "AppStyle.h"

#include "Colors.h"

#include <QApplication>
#include <QIcon>
#include <QToolBar>

#include <gtest/gtest.h>

/// At global scope, as the macro declares a function of the resource compiler.
static void initMarks()
{
    Q_INIT_RESOURCE(nalvo);
}

namespace {

/// Gives the application back its style and font.
class StyleOfTheProgram : public ::testing::Test
{
protected:
    StyleOfTheProgram()
    {
        initMarks();
        AppStyle::install();
    }
    ~StyleOfTheProgram() override
    {
        Colors::setScheme(Colors::eLight);
        QApplication::setStyle("fusion");
        QApplication::setFont(m_font);
    }

    static QImage arrow()
    {
        return QApplication::style()
            ->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton)
            .pixmap(12, 12)
            .toImage();
    }

    const QFont m_font = QApplication::font();
};

} // namespace

TEST_F(StyleOfTheProgram, hasTheMarksOfTheScheme)
{
    const QImage light = arrow();
    ASSERT_FALSE(light.isNull());
    Colors::setScheme(Colors::eDark);
    EXPECT_NE(arrow(), light);
}

TEST_F(StyleOfTheProgram, isInstalledOnce)
{
    const QStyle* style = QApplication::style();
    AppStyle::install();
    EXPECT_EQ(QApplication::style(), style);
    EXPECT_EQ(style->objectName(), "fusion");
}

TEST_F(StyleOfTheProgram, setsTextsWithoutKerningInTheFontOfTheSystem)
{
    EXPECT_EQ(QApplication::font().family(), m_font.family());
    EXPECT_EQ(QApplication::font().pointSizeF(), m_font.pointSizeF());
    EXPECT_TRUE(QApplication::font().styleStrategy() & QFont::PreferNoShaping);
    AppStyle::followSystemFont();
    EXPECT_TRUE(QApplication::font().styleStrategy() & QFont::PreferNoShaping);
    // A font that somebody has chosen stays.
    QFont chosen = QApplication::font();
    chosen.setPointSizeF(chosen.pointSizeF() + 5);
    QApplication::setFont(chosen);
    AppStyle::followSystemFont();
    EXPECT_EQ(QApplication::font().pointSizeF(), chosen.pointSizeF());
}
