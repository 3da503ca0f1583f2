// The menu tree as data: captions, shortcut texts, what an entry does and when it can be chosen.
// The window builds its menus from this table and nothing else. The shortcut texts are promises
// that the table of keys keeps.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kelvarine {

struct MenuRow {
    int Level; // 1 top-level menu, 2 entry, 3 entry of a submenu
    std::string_view Name;
    std::string_view Caption;  // & before the access letter; # stands for the number
    std::string_view Shortcut; // the same; empty for none
    void (*Run)(std::int32_t number) = nullptr; // null for a menu of further entries or a line
    std::int32_t First = 0; // the row stands for one entry for each number of this range
    std::int32_t Last = 0;
    bool (*Enabled)(std::int32_t number) = nullptr; // null: always
    bool (*Checked)(std::int32_t number) = nullptr; // null: the entry has no check mark
};

inline constexpr std::string_view SeparatorCaption = "-";

extern const std::span<const MenuRow> MenuTable;

// Caption or shortcut of one entry of a row: every # becomes the number.
std::string WithNumber(std::string_view text, std::int32_t number);

// Caption of one entry of a row, as it stands now; the clock's menu changes its captions.
std::string MenuCaption(const MenuRow &row, std::int32_t number);

} // namespace kelvarine
