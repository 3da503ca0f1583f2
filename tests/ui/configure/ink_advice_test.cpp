// The Print tab's advice on looks that cover much of the page with ink.
#include "board/geometry.h"
#include "board/look.h"
#include "configure/presets.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "print/page_layout.h"
#include "print/print_settings.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/widget_configure.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>

#include <tuple>

namespace kelvarine::testing {
namespace {

class InkAdvice : public ConfigureTest {
protected:
    void SetUp() override
    {
        ConfigureTest::SetUp();
        SetGame(EasyGame);
        StartGame(NewGame);
        Open(PrintTab);
        Settle();
    }

    // The ink is measured in a turn of painting, and told in the next one.
    void Settle()
    {
        for (int turn = 0; turn < 5; ++turn) {
            QCoreApplication::processEvents();
            Screen->grab();
        }
        QCoreApplication::processEvents();
    }

    void TakeLook(std::int32_t preset)
    {
        ApplyPreset(preset);
        Settle();
    }

    bool Advises()
    {
        EXPECT_EQ(Find<QLabel>("lblInk")->isVisible(), Find<QWidget>("cmdShowLight")->isVisible());
        return Find<QLabel>("lblInk")->isVisible();
    }

    // Percent that the advice tells.
    int Told()
    {
        static const QRegularExpression words(
            R"(^This look covers (\d+) % of the page with ink\. A light one needs far less\.$)");
        const auto match = words.match(Find<QLabel>("lblInk")->text());
        EXPECT_TRUE(match.hasMatch()) << Find<QLabel>("lblInk")->text().toStdString();
        return match.captured(1).toInt();
    }

    QImage Preview()
    {
        return Find<QWidget>("picPrintPreview")->grab().toImage();
    }

    // Share of the preview that is as good as white, in hundredths.
    int Whiteness()
    {
        const QImage preview = Preview();
        int white = 0;
        for (int y = 0; y < preview.height(); ++y) {
            for (int x = 0; x < preview.width(); ++x) {
                white += qGray(preview.pixel(x, y)) > 240 ? 1 : 0;
            }
        }
        return white * 100 / (preview.width() * preview.height());
    }
};

TEST_F(InkAdvice, IsNotGivenForAGameOfTheUsualSize)
{
    EXPECT_FALSE(Advises());
}

TEST_F(InkAdvice, IsGivenForADarkLookOnTheFullPage)
{
    Click("chkFullPage");
    Settle();
    ASSERT_TRUE(Advises());
    // Cells of which the darkest light is a third of the full one or less, on two thirds of the
    // page.
    EXPECT_GT(Told(), 40);
    EXPECT_LT(Told(), 70);
}

TEST_F(InkAdvice, CountsEveryGameOfAPage)
{
    Click("optPrintGame(1)");
    Settle();
    EXPECT_GT(Told(), 20);
    const int one = Told();
    Find<QComboBox>("cmbGamesPerPage")->setCurrentIndex(6);
    Settle();
    EXPECT_TRUE(Advises());
    EXPECT_GT(Told(), one);
}

TEST_F(InkAdvice, IsNotGivenForALightLook)
{
    Click("chkFullPage");
    TakeLook(1);
    EXPECT_FALSE(Advises());
    TakeLook(2);
    EXPECT_TRUE(Advises());
}

TEST_F(InkAdvice, ButtonShowsTheLightLookAndTheBoardKeepsItsOwn)
{
    Click("chkFullPage");
    Settle();
    const auto state = [] {
        return std::tuple(Grid, ColourTable, PrimaryThickness, MarginThickness, BorderThickness,
                          CellWidth, CellHeight, BoardPlace.Width, PrintWidth, PrintHeight);
    };
    const auto before = state();
    const int told = Told();
    const QImage dark = Preview();
    const int darkWhiteness = Whiteness();
    QTest::mouseClick(Find<QPushButton>("cmdShowLight"), Qt::LeftButton);
    Settle();
    EXPECT_GT(Whiteness(), darkWhiteness + 30);
    EXPECT_EQ(state(), before);
    EXPECT_TRUE(Advises()) << "as the board's own look is as it was";
    EXPECT_EQ(Told(), told);
    QTest::mouseClick(Find<QPushButton>("cmdShowLight"), Qt::LeftButton);
    Settle();
    EXPECT_EQ(Preview(), dark);
}

TEST_F(InkAdvice, GoesWithItsCauseAndTakesTheLightLookAlong)
{
    Click("chkFullPage");
    Settle();
    QTest::mouseClick(Find<QPushButton>("cmdShowLight"), Qt::LeftButton);
    Settle();
    SetPrintFullPage(False);
    SetPrintWidth(2);
    TakeLook(2);
    EXPECT_FALSE(Advises());
    EXPECT_FALSE(Find<QPushButton>("cmdShowLight")->isChecked());
    const int whiteness = Whiteness();
    TakeLook(1);
    EXPECT_GT(Whiteness(), whiteness) << "what was shown was the dark look";
}

} // namespace
} // namespace kelvarine::testing
