// Makes what the pages of the help cannot hold as words: the table of keys, from the table that the
// menus are built from, and the examples of the techniques, drawn by what
// the game's own hint marks and says. Run by the build.
//
//   make_help keyboard PAGE OUTPUT            PAGE with the table of keys in place of @KEYS@
//   make_help reference PAGE OUTPUT           PAGE with tables of menus and of the pages beside it
//   make_help example PAGE FRAME OUTPUT PICTURE
//                                             PAGE with FRAME in place of @EXAMPLE@, and the
//                                             picture of its position with the first hint on it, in
//                                             a light form and, beside it, a dark one
#include "files/text_format.h"
#include "game/alert_scan.h"
#include "grid/grid.h"
#include "help_picture.h"
#include "input/menu_table.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "outside/whole_file.h"
#include "program/defaults.h"
#include "ui/screens/help_page.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <cstdlib>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

namespace kelvarine {

namespace {

constexpr std::int32_t FirstStage = 3; // of a hint
constexpr std::int32_t FullHint = 5;

[[noreturn]] void Fail(const std::string &words)
{
    std::cerr << "make_help: " << words << '\n';
    std::exit(EXIT_FAILURE);
}

std::string ReadText(const std::string &path)
{
    std::string text;
    std::string error;
    if (!ReadWholeFile(path, text, error)) {
        Fail(path + ": " + error);
    }
    return text;
}

void WriteText(const std::string &path, std::string_view text)
{
    std::string error;
    if (!ReplaceWholeFile(path, text, error)) {
        Fail(path + ": " + error);
    }
}

void ReplaceAll(std::string &text, std::string_view mark, std::string_view by)
{
    for (std::size_t at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + by.size())) {
        text.replace(at, mark.size(), by);
    }
}

std::string Escaped(std::string text)
{
    ReplaceAll(text, "&", "&amp;");
    ReplaceAll(text, "<", "&lt;");
    ReplaceAll(text, ">", "&gt;");
    return text;
}

// Puts a text in the place of a mark that the page must have.
void Fill(std::string &page, std::string_view mark, std::string_view by)
{
    if (page.find(mark) == std::string::npos) {
        Fail("no " + std::string(mark) + " in the page");
    }
    ReplaceAll(page, mark, by);
}

// ---- The table of keys -----------------------------------------------------------------------

// A caption as the player reads it: without the mark of the access letter.
std::string Words(std::string_view caption)
{
    std::string words;
    for (std::size_t k = 0; k < caption.size(); ++k) {
        if (caption[k] == '&' && k + 1 < caption.size() && caption[k + 1] != '&') {
            continue;
        }
        words += caption[k];
        k += caption[k] == '&' ? 1 : 0;
    }
    return words;
}

// A caption or shortcut of a row that stands for several numbers: "Ctrl+1 to Ctrl+9".
std::string Range(std::string_view text, const MenuRow &row)
{
    const std::string first = WithNumber(text, row.First);
    const std::string last = WithNumber(text, row.Last);
    return first == last ? first : first + " to " + last;
}

// The keys of one menu, by its name in the table, or of all when only is empty.
std::string KeyTableHtml(std::string_view only)
{
    std::string html;
    std::string menu;
    std::string submenu;
    bool wanted = false;
    for (const MenuRow &row : MenuTable) {
        if (row.Level == 1) {
            menu = Words(row.Caption);
            wanted = only.empty() || only == row.Name;
        }
        if (row.Level < 3) {
            submenu = row.Run == nullptr ? Words(row.Caption) + ": " : "";
        }
        if (row.Shortcut.empty() || !wanted) {
            continue;
        }
        if (!menu.empty()) {
            html += "<tr><th colspan=\"2\">" + Escaped(menu) + "</th></tr>\n";
            menu.clear();
        }
        const std::string group = row.Level == 3 ? submenu : "";
        html += "<tr><td>" + Escaped(Range(row.Shortcut, row)) + "</td><td>" +
                Escaped(group + Range(Words(row.Caption), row)) + "</td></tr>\n";
    }
    return "<table class=\"keys\">\n" + html + "</table>\n";
}

void MakeKeyboardPage(const std::string &page, const std::string &output)
{
    std::string text = ReadText(page);
    Fill(text, "@KEYS@", KeyTableHtml({}));
    WriteText(output, text);
}

// ---- The reference ---------------------------------------------------------------------------

// A table of another page beside the reference, the first being 1.
std::string TableOf(const std::string &page, int which)
{
    const std::string text = ReadText(page);
    std::size_t start = 0;
    for (int k = 0; k < which && start != std::string::npos; ++k) {
        start = text.find("<table", start + 1);
    }
    const std::string_view closing = "</table>";
    const std::size_t end = text.find(closing, start);
    if (start == std::string::npos || end == std::string::npos) {
        Fail("no table " + std::to_string(which) + " in " + page);
    }
    return text.substr(start, end - start + closing.size());
}

// "@menu mnuGame@" becomes the keys of that menu, "@toolbar 1@" the first table of that page.
std::string Inset(const std::string &folder, const std::string &mark)
{
    const std::size_t blank = mark.find(' ');
    const std::string name = mark.substr(0, blank);
    const std::string argument = mark.substr(blank + 1);
    return name == "menu" ? KeyTableHtml(argument)
                          : TableOf(folder + '/' + name + ".html", std::stoi(argument));
}

void MakeReference(const std::string &page, const std::string &output)
{
    const std::string folder = QFileInfo(QString::fromStdString(page)).path().toStdString();
    std::string text = ReadText(page);
    for (std::size_t start = text.find('@'); start != std::string::npos; start = text.find('@')) {
        const std::size_t end = text.find('@', start + 1);
        if (end == std::string::npos) {
            Fail("a mark without an end in " + page);
        }
        text.replace(start, end - start + 1,
                     Inset(folder, text.substr(start + 1, end - start - 1)));
    }
    WriteText(output, text);
}

// ---- Examples --------------------------------------------------------------------------------

// What a page's head says under a name; empty when it says nothing.
std::string HeadWord(const std::string &page, const std::string &name)
{
    const std::string lead = "<meta name=\"" + name + "\" content=\"";
    const std::size_t start = page.find(lead);
    return start == std::string::npos
               ? std::string()
               : page.substr(start + lead.size(),
                             page.find('"', start + lead.size()) - start - lead.size());
}

// Puts the position of a page on the board. Where the page wants it thinned, all pencilmarks are
// filled in and those go that see their number.
void ShowPosition(const std::string &page)
{
    if (ReadPosition(PositionOf(page)) != 81) {
        Fail("the position of the page is not whole");
    }
    if (HeadWord(page, "board") == "thinned") {
        FillPencilmarks();
        SolveMask = MaskOf({NakedSingle});
        ApplyLogic(0);
        ClearCellBits(PassMarks);
    }
    CountGivens();
    RateGame();
}

// The words of a stage of the game's first hint on the board, as the game shows them; its marks
// stay there.
std::string HintOf(std::int32_t stage)
{
    ScanAlerts(stage);
    if (HintText.empty()) {
        Fail("the game has no hint on the position of the page");
    }
    std::string words = Escaped(HintText);
    ReplaceAll(words, "a 8", "an 8");
    while (!words.empty() && words.back() == '\r') {
        words.pop_back();
    }
    ReplaceAll(words, "\r", "<br>");
    return words;
}

// The technique of a number among the pages: that which its head names, or that of its own name.
std::int32_t TechniqueOf(const std::string &path, const std::string &page)
{
    const std::string own = QFileInfo(QString::fromStdString(path)).baseName().toStdString();
    const std::string named = HeadWord(page, "technique");
    for (const TechniqueRow &row : Techniques) {
        if (row.HelpPage == (named.empty() ? own : named)) {
            return row.Number;
        }
    }
    Fail("no technique has the page " + path);
}

void WritePicture(const PictureLook &look, std::int32_t technique, const QString &path)
{
    if (!HelpPicture(look, technique).save(path, "PNG", 0)) {
        Fail("cannot write " + path.toStdString());
    }
}

void MakeExamplePage(const std::string &page, const std::string &frame, const std::string &output,
                     const std::string &picture)
{
    std::string text = ReadText(page);
    ShowPosition(text);
    std::string example = ReadText(frame);
    const QFileInfo file(QString::fromStdString(picture));
    ReplaceAll(example, "@FIRST@", HintOf(FirstStage));
    ReplaceAll(example, "@SECOND@", HintOf(FirstStage + 1));
    ClearCellBits(PassMarks);
    Fill(example, "@WORDS@", HintOf(FullHint));
    Fill(example, "@TITLE@", Escaped(HintTitle));
    Fill(example, "@PICTURE@", file.fileName().toStdString());

    const std::int32_t technique = TechniqueOf(page, text);
    WritePicture(LightPicture, technique, file.filePath());
    WritePicture(DarkPicture, technique, DarkFormOf(file.filePath()));
    Fill(text, "@EXAMPLE@", example);
    WriteText(output, text);
}

int Run(std::span<char *> arguments)
{
    SetDefaults();
    const std::string_view kind = arguments.size() > 1 ? arguments[1] : "";
    if (kind == "keyboard" && arguments.size() == 4) {
        MakeKeyboardPage(arguments[2], arguments[3]);
        return EXIT_SUCCESS;
    }
    if (kind == "reference" && arguments.size() == 4) {
        MakeReference(arguments[2], arguments[3]);
        return EXIT_SUCCESS;
    }
    if (kind == "example" && arguments.size() == 6) {
        MakeExamplePage(arguments[2], arguments[3], arguments[4], arguments[5]);
        return EXIT_SUCCESS;
    }
    Fail("keyboard PAGE OUTPUT, reference PAGE OUTPUT, or example PAGE FRAME OUTPUT PICTURE");
}

} // namespace

} // namespace kelvarine

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return kelvarine::Run({argv, static_cast<std::size_t>(argc)});
}
