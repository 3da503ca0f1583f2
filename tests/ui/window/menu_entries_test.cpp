#include "support/widget_events.h"
#include "support/widget_menus.h"
#include "ui/window/board_widget.h"

#include <QtTest>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

void CloseOtherWindows(const MainWindow &main)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window != &main) {
            window->close();
        }
    }
}

struct KeyPress {
    int Key = 0;
    Qt::KeyboardModifiers Modifiers;
};

// The key that a shortcut text promises.
std::optional<KeyPress> KeyOf(std::string shortcut)
{
    KeyPress key;
    const auto take = [&](const std::string &prefix, Qt::KeyboardModifier modifier) {
        if (shortcut.starts_with(prefix)) {
            shortcut.erase(0, prefix.size());
            key.Modifiers |= modifier;
        }
    };
    take("Ctrl+", Qt::ControlModifier);
    take("Shift+", Qt::ShiftModifier);
    const std::map<std::string, int> named{{"Insert", Qt::Key_Insert},
                                           {"Del", Qt::Key_Delete},
                                           {"F12", Qt::Key_F12},
                                           {" -", Qt::Key_Minus}};
    if (const auto found = named.find(shortcut); found != named.end()) {
        key.Key = found->second;
    } else if (shortcut.size() == 1) {
        key.Key = static_cast<unsigned char>(shortcut.front());
    } else {
        return std::nullopt;
    }
    return key;
}

using Act = std::function<void(const Entry &)>;

class EntryOfMenu : public MenuBar {
protected:
    // The state after an act on the k-th entry of a fresh program, and the windows that came.
    std::string After(std::size_t k, CellWord filter, const Act &act)
    {
        Renew();
        SetScene(filter);
        const Entry entry = EntriesOf(Main())[k];
        std::string state;
        const Texts windows = CloseModals([&] {
            act(entry);
            QCoreApplication::processEvents();
            state = StateNow();
        });
        CloseOtherWindows(Main());
        for (const std::string &window : windows) {
            state += "\nmodal " + window;
        }
        return state;
    }

    void PressKey(const KeyPress &key)
    {
        QTest::keyClick(Main().Client->Board, static_cast<Qt::Key>(key.Key), key.Modifiers);
    }

    // Compares the three ways to an entry; true when the entry did something.
    bool CompareWays(std::size_t k, CellWord filter)
    {
        const Entry entry = EntriesOf(Main())[k];
        const std::string byMenu = After(k, filter, Choose);
        EXPECT_EQ(byMenu, After(k, filter, [](const Entry &same) { same.Row->Run(same.Number); }))
            << entry.Name();
        if (const auto key = KeyOf(WithNumber(entry.Row->Shortcut, entry.Number))) {
            EXPECT_EQ(byMenu, After(k, filter, [&](const Entry &) { PressKey(*key); }))
                << entry.Name();
            ++keysCompared;
        }
        return byMenu != After(k, filter, [](const Entry &) {});
    }

    int keysCompared = 0;
};

TEST_F(EntryOfMenu, DoesWhatItsRowAndItsKeyDo)
{
    const std::size_t count = EntriesOf(Main()).size();
    for (std::size_t k = 0; k < count; ++k) {
        const Entry entry = EntriesOf(Main())[k];
        if (entry.Row->Run == nullptr) {
            continue;
        }
        const bool acts = CompareWays(k, CandidateMask);
        const bool actsOnThree = CompareWays(k, BitTable[3]);
        EXPECT_TRUE(acts || actsOnThree) << entry.Name() << " does nothing";
    }
    EXPECT_GE(keysCompared, 100);
}

} // namespace
} // namespace kelvarine::testing
