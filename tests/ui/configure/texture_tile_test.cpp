#include "support/widget_program.h"
#include "ui/controls/colour_swatches.h"

#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class TextureTiles : public ::testing::Test {
protected:
    [[nodiscard]] QImage Painted()
    {
        QCoreApplication::processEvents();
        return tile.grab().toImage();
    }

    QWidget window;
    TextureTile tile{&window, 3};
};

// The toolkit tells assistive tools of every name that is set, the same one again too.
TEST_F(TextureTiles, NameIsSetOnlyWhenItChanges)
{
    tile.setAccessibleName("untouched");
    tile.ShowInForce(false);
    EXPECT_EQ(tile.accessibleName(), "untouched");
    tile.ShowInForce(true);
    EXPECT_EQ(tile.accessibleName(), "Texture 3, in force");
    tile.setAccessibleName("untouched");
    tile.ShowInForce(true);
    EXPECT_EQ(tile.accessibleName(), "untouched");
    tile.ShowInForce(false);
    EXPECT_EQ(tile.accessibleName(), "Texture 3");
}

TEST_F(TextureTiles, FocusIsSeenOnTheOneInForceAsWell)
{
    window.resize(100, 60);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window, Patience));
    for (const bool inForce : {false, true}) {
        tile.ShowInForce(inForce);
        tile.clearFocus();
        const QImage without = Painted();
        tile.setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(tile.hasFocus());
        EXPECT_NE(Painted(), without) << inForce;
    }
}

} // namespace
} // namespace kelvarine::testing
