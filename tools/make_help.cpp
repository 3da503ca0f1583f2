// Makes what the pages of the help cannot hold as words: tables of keys, from the table that the
// menus are built from and from other pages, and the examples of techniques and lessons, drawn by
// what the game's own hint marks and says. Run by the build.
//
//   make_help tables PAGE OUTPUT              PAGE with tables of menus and of the pages beside it
//   make_help example PAGE FRAMES OUTPUT      PAGE with frames of that folder filled in, and beside
//                                             OUTPUT the pictures of the page's positions with the
//                                             first hint on each, in a light and a dark form
#include "files/text_format.h"
#include "grid/grid.h"
#include "grid/rating_words.h"
#include "help_example.h"
#include "help_picture.h"
#include "input/menu_table.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "outside/whole_file.h"
#include "program/defaults.h"
#include "ui/screens/help_page.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

namespace kelvarine {

namespace {

constexpr std::int32_t FirstStage = 3; // of a hint
constexpr std::int32_t FullHint = 5;
constexpr std::size_t MostSteps = 20; // of a game that is played to its end
constexpr std::string_view AllMenus = "all";

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

// The keys of one menu, by its name in the table, or of all menus.
std::string KeyTableHtml(std::string_view only)
{
    std::string html;
    std::string menu;
    std::string submenu;
    bool wanted = false;
    for (const MenuRow &row : MenuTable) {
        if (row.Level == 1) {
            menu = Words(row.Caption);
            wanted = only == AllMenus || only == row.Name;
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

// ---- Tables of other pages -------------------------------------------------------------------

// A table of a page, the first being 1.
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

// "@menu mnuGame@" becomes the keys of that menu, "@menu all@" those of all, and "@toolbar 1@" the
// first table of that page.
std::string Inset(const std::string &folder, const std::string &mark)
{
    const std::size_t blank = mark.find(' ');
    const std::string name = mark.substr(0, blank);
    const std::string argument = mark.substr(blank + 1);
    return name == "menu" ? KeyTableHtml(argument)
                          : TableOf(folder + '/' + name + ".html", std::stoi(argument));
}

void FillTables(const std::string &page, const std::string &output)
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

// The technique of a page: that which its head names, or that of its own name.
const TechniqueRow &TechniqueOf(const QFileInfo &output, const std::string &page)
{
    const std::string named = HeadWord(page, "technique");
    const std::string name = named.empty() ? output.baseName().toStdString() : named;
    const TechniqueRow *row = TechniqueOfPage(name);
    if (row == nullptr) {
        Fail("no technique has the page " + name);
    }
    return *row;
}

// Puts a position of a page on the board. Where the page's head has techniques ticked, all
// pencilmarks are filled in and these techniques applied.
void ShowPosition(const std::string &page, int which)
{
    if (ReadPosition(PositionOf(page, which)) != 81) {
        Fail("a position of the page is not whole");
    }
    CountGivens();
    RateGame();
    if (const std::string ticked = HeadWord(page, "ticked"); !ticked.empty()) {
        FillAndApply(MaskOfPages(ticked));
    }
}

// The words of a stage of the first hint on the board, as the game shows them.
std::string ShownHint(std::int32_t stage)
{
    std::string words = HintWords(stage);
    if (words.empty()) {
        Fail("the game has no hint on a position of the page");
    }
    ReplaceAll(words, "a 8", "an 8");
    return Escaped(words);
}

// A position as a link holds it.
std::string LineOf(const std::string &page, int which)
{
    ReadPosition(PositionOf(page, which));
    std::string line = SingleLineText();
    line.erase(line.find_last_not_of("\r\n") + 1);
    ReplaceAll(line, " ", "%20");
    return line;
}

std::string DigitOf(CellWord word)
{
    return std::to_string(LowestCandidate(word));
}

// Puts a page's supposition on the board, and what comes of it into the frame.
Supposition FillSupposition(std::string &frame, const std::string &text, std::int32_t technique)
{
    const Supposition supposed = SuppositionOf(text);
    if (supposed.Number == 0) {
        return NothingSupposed;
    }
    HintBy(technique);
    Suppose(supposed);
    Fill(frame, "@SPOILER@", ShortName(supposed.Where));
    Fill(frame, "@NUMBER@", std::to_string(supposed.Number));
    ShownHint(FullHint);
    const Cell target = SelectedCell();
    Fill(frame, "@TARGET@", ShortName(target));
    Fill(frame, "@RIGHT@", DigitOf(SolutionOf(WordAt(target))));
    return supposed;
}

void WritePictures(const PictureSubject &subject, const QString &path)
{
    const auto write = [&](const PictureLook &look, const QString &file) {
        if (!HelpPicture(look, subject).save(file, "PNG", 0)) {
            Fail("cannot write " + file.toStdString());
        }
    };
    write(LightPicture, path);
    write(DarkPicture, DarkFormOf(path));
}

// The hints of a game that is played to its end, as a list: what each says and what falls after it.
std::string WalkHtml(const std::string &page)
{
    std::string html;
    for (const WalkStep &step : Walk(MaskOfPages(HeadWord(page, "ticked")), MostSteps)) {
        std::string words = step.Words;
        ReplaceAll(words, "a 8", "an 8");
        html += "<li><b>" + Escaped(step.Title) + "</b>. " + Escaped(words) + "<br>Strike out";
        const char *lead = " the ";
        for (const Supposition &one : step.Struck) {
            html += lead;
            html += std::to_string(one.Number);
            html += " in ";
            html += ShortName(one.Where);
            lead = ", the ";
        }
        html += ", and press Ctrl+L.</li>\n";
    }
    if (IsGridSolved() == False) {
        Fail("the game of the page does not come to its end");
    }
    return html;
}

// A frame with the words and the picture of a page's position; the picture is written.
std::string ExampleHtml(std::string frame, const std::string &page, int which,
                        const TechniqueRow &technique, const QFileInfo &output)
{
    const QString ending = which == 1 ? QString() : u'-' + QString::number(which);
    const QString name = output.baseName() + ending + QStringLiteral(".png");
    ReplaceAll(frame, "@LINE@", LineOf(page, which));
    Fill(frame, "@PICTURE@", name.toStdString());
    ShowPosition(page, which);
    const std::string supposed = PositionAttribute(page, which, "title");
    const PictureSubject subject{technique.Number,
                                 FillSupposition(frame, supposed, technique.Number)};
    ReplaceAll(frame, "@FIRST@", ShownHint(FirstStage));
    ReplaceAll(frame, "@SECOND@", ShownHint(FirstStage + 1));
    ReplaceAll(frame, "@WORDS@", ShownHint(FullHint));
    ReplaceAll(frame, "@TITLE@", Escaped(HintTitle));
    ReplaceAll(frame, "@CELL@", ShortName(SelectedCell()));
    ReplaceAll(frame, "@CAPTION@", CaptionsOf(BitOf(technique.Number)));
    WritePictures(subject, output.dir().filePath(name));
    if (const std::string ticked = HeadWord(page, "ticked"); !ticked.empty()) {
        ReplaceAll(frame, "@TICKED@", CaptionsOf(MaskOfPages(ticked)));
    }
    if (frame.find("@WALK@") != std::string::npos) {
        Fill(frame, "@WALK@", WalkHtml(page));
    }
    HintByAll();
    return frame;
}

// Where the technique stands in the settings.
std::string LevelHtml(std::string frame, const TechniqueRow &technique)
{
    Fill(frame, "@LEVEL@", WordsOfRating(technique.Level).Capital);
    Fill(frame, "@CAPTION@", CaptionsOf(BitOf(technique.Number)));
    Fill(frame, "@NAME@", technique.ReportName);
    return frame;
}

std::string FrameOf(const std::string &frames, const std::string &name)
{
    return ReadText(frames + '/' + name + ".html");
}

// Fills the insets of a page: "@example@" and every other name but "level" takes the next position
// of the page into the frame of that name.
void MakeExamplePage(const std::string &page, const std::string &frames, const std::string &output)
{
    const std::string source = ReadText(page);
    const QFileInfo file(QString::fromStdString(output));
    const TechniqueRow &technique = TechniqueOf(file, source);
    std::string text = source;
    int which = 0;
    for (std::size_t start = text.find('@'); start != std::string::npos; start = text.find('@')) {
        const std::size_t end = text.find('@', start + 1);
        const std::string name = text.substr(start + 1, end - start - 1);
        const std::string frame = FrameOf(frames, name);
        text.replace(start, end - start + 1,
                     name == "level" ? LevelHtml(frame, technique)
                                     : ExampleHtml(frame, source, ++which, technique, file));
    }
    WriteText(output, text);
}

int Run(std::span<char *> arguments)
{
    SetDefaults();
    const std::string_view kind = arguments.size() > 1 ? arguments[1] : "";
    if (kind == "tables" && arguments.size() == 4) {
        FillTables(arguments[2], arguments[3]);
        return EXIT_SUCCESS;
    }
    if (kind == "example" && arguments.size() == 5) {
        MakeExamplePage(arguments[2], arguments[3], arguments[4]);
        return EXIT_SUCCESS;
    }
    Fail("tables PAGE OUTPUT, or example PAGE FRAMES OUTPUT");
}

} // namespace

} // namespace kelvarine

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return kelvarine::Run({argv, static_cast<std::size_t>(argc)});
}
