// The picture of the selected game while its rating, which lets events through, is under way.
#include "game/game_in_hand.h"
#include "support/widget_file_dialog.h"
#include "ui/outside/yield_pace.h"
#include "ui/screens/game_picture.h"

namespace kelvarine::testing {
namespace {

// One solution each. The first takes hundreds of passes of the logic.
constexpr std::string_view HardGame =
    "8..........36......7..9.2...5...7.......457.....1...3...1....68..85...1..9....4..";
constexpr std::string_view PlainGame =
    "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79";

class PictureRating : public FileDialogWindow {
protected:
    void SetUp() override
    {
        FileDialogWindow::SetUp();
        Folder.Write("hard.sdk", HardGame);
        Folder.Write("plain.sdk", PlainGame);
        Show(OpenGameCaption);
        YieldInterval = {};
        watch.setInterval(0);
        QObject::connect(&watch, &QTimer::timeout, &watch, [this] { See(); });
    }

    void TearDown() override
    {
        YieldInterval = std::chrono::milliseconds(10);
    }

    // Selects the hard game, and acts once its rating is under way.
    void RateAndAct(std::function<void()> action)
    {
        Action = std::move(action);
        watch.start();
        Files()->Select(0);
        EXPECT_TRUE(QTest::qWaitFor([this] { return acted; }, Patience));
    }

    std::function<void()> Action;
    int TurnsAfterwards = 0; // of the event loop, while the rating went on all the same

private:
    void See()
    {
        if (GameAside == nullptr) {
            return;
        }
        if (acted) {
            ++TurnsAfterwards;
        } else if (++turns == 3) {
            acted = true;
            Action();
        }
    }

    QTimer watch;
    int turns = 0;
    bool acted = false;
};

TEST_F(PictureRating, LeavesThePlaceToTheFileSelectedMeanwhile)
{
    RateAndAct([this] { Files()->Select(1); });
    const auto *picture = Find<GamePicture>("picGame");
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture->Words() == "Easy\n30 givens"; }, Patience));
    QCoreApplication::processEvents();
    EXPECT_EQ(picture->Words().toStdString(), "Easy\n30 givens");
    // The easy game takes some, the other a thousand.
    EXPECT_LT(TurnsAfterwards, 100);
}

TEST_F(PictureRating, EndsWithTheDialog)
{
    RateAndAct([this] { Dialog->reject(); });
    EXPECT_TRUE(QTest::qWaitFor([] { return GameAside == nullptr; }, Patience));
    EXPECT_LE(TurnsAfterwards, 3);
}

TEST_F(PictureRating, HasNoControlAtWorkBelowIt)
{
    const auto *picture = Find<GamePicture>("picGame");
    Files()->Select(0);
    EXPECT_EQ(picture->Words().toStdString(), "") << "the picture waits for its turn";
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture->Words().contains("21 givens"); }, Patience));
}

} // namespace
} // namespace kelvarine::testing
