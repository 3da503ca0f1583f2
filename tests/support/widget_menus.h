// The menus in a test: their entries beside the rows of the table that they stand for, the player's
// hand on them, and a game in which each of them does something.
#pragma once

#include "grid/cell_word.h"
#include "input/menu_table.h"
#include "support/widget_program.h"

#include <QMenu>
#include <QtTest>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine::testing {

// An entry of the table, a row of numbers spread out, and the toolkit's action for it.
struct Entry {
    const MenuRow *Row = nullptr;
    std::int32_t Number = 0;
    int Level = 0; // where the action stands
    QAction *Action = nullptr;
    QMenu *Menu = nullptr; // that holds the action; null in a bar
    QMenu *Top = nullptr;  // the top-level menu above it

    [[nodiscard]] std::string Name() const
    {
        return std::string(Row->Name) + " " + std::to_string(Number);
    }

    // What an action named so and of that number is expected to say.
    [[nodiscard]] std::string Text() const
    {
        const std::string shortcut = WithNumber(Row->Shortcut, Number);
        const bool shown = !shortcut.empty() && shortcut != "F12";
        return MenuCaption(*Row, Number) + (shown ? "\t" + shortcut : "");
    }
};

// All entries in the order of the screen; row and number of each from the order of the table.
std::vector<Entry> EntriesOf(const MainWindow &window);

// The entry of a row, by the row's name and its number. Fails the test when there is none.
Entry EntryNamed(const MainWindow &window, std::string_view name, std::int32_t number = 0);

// A fresh program with its window in front.
class MenuBar : public ::testing::Test {
protected:
    MenuBar()
    {
        program = std::make_unique<Program>();
    }

    void SetUp() override
    {
        Activate();
    }

    // A program as at the start.
    void Renew()
    {
        program.reset();
        program = std::make_unique<Program>();
        Activate();
    }

    void Activate()
    {
        program->Main->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(program->Main.get(), Patience));
    }

    [[nodiscard]] MainWindow &Main() const
    {
        return *program->Main;
    }

    std::unique_ptr<Program> program;
};

// Opens a menu, as a click on its title does.
void Open(QMenu *menu);

// Closes all menus that are open.
void CloseMenus();

// Opens the menus above an entry and clicks on it, as a player does.
void Choose(const Entry &entry);

// A saved game in its middle: cells selected, levels to undo and redo, a snapshot, alerts, links
// that none of the entries names, and so many numbers in view.
void SetScene(CellWord filter = CandidateMask);

// Everything that an entry may change and the windows that are open, as text.
std::string StateNow();

} // namespace kelvarine::testing
