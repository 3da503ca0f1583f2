#include "grid/grid.h"
#include "logic/driver.h"
#include "support/widget_events.h"
#include "support/widget_menus.h"
#include "support/widget_program.h"

#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class MenuDuringASearch : public MenuBar {
protected:
    void SetUp() override
    {
        MenuBar::SetUp();
        SearchActive = True;
    }

    void TearDown() override
    {
        SearchActive = False;
        SearchKind = 0;
    }
};

TEST_F(MenuDuringASearch, AsksAndHasNothingToOffer)
{
    const Texts question{"Kelvarine: Would you like to stop searching?"};
    for (const Entry &entry : EntriesOf(Main())) {
        if (entry.Level != 1 || entry.Action->menu() == nullptr) {
            continue;
        }
        for (const std::int32_t kind : {0, 1, 4}) {
            SearchKind = kind;
            const Texts boxes = CloseModals([&] {
                Open(entry.Action->menu());
                QCoreApplication::processEvents();
            });
            EXPECT_EQ(boxes, kind == 1 ? question : Texts{}) << entry.Name();
            EXPECT_FALSE(entry.Action->menu()->isVisible()) << entry.Name();
            CloseMenus();
        }
    }
}

TEST_F(MenuDuringASearch, YesStopsTheSearchAndStillOffersNothing)
{
    SearchKind = 1;
    QMenu *menu = EntryNamed(Main(), "mnuAction").Action->menu();
    AnswerBoxes(
        [&] {
            Open(menu);
            QCoreApplication::processEvents();
        },
        {QMessageBox::Yes});
    EXPECT_EQ(SearchActive, False);
    EXPECT_FALSE(menu->isVisible());
    CloseMenus();
}

TEST_F(MenuDuringASearch, EntriesOnlyAsk)
{
    SearchActive = False;
    SetScene();
    SearchActive = True;
    for (const Entry &entry : EntriesOf(Main())) {
        if (entry.Row->Run == nullptr) {
            continue;
        }
        for (const std::int32_t kind : {1, 4}) {
            SearchKind = kind;
            entry.Action->setEnabled(true);
            const std::string before = StateNow();
            const Texts boxes = CloseModals([&] { entry.Action->trigger(); });
            EXPECT_EQ(boxes.size(), kind == 1 ? 1U : 0U) << entry.Name();
            EXPECT_EQ(StateNow(), before) << entry.Name();
        }
    }
}

} // namespace
} // namespace kelvarine::testing
