// Finds examples for the pages of the help, with the engine itself: positions on which the first
// hint is of a wished technique, so that nothing simpler is there to be found, and positions that
// look like the technique and are not. Reads games of 81 marks from a file, one at the end of each
// line, plays them with the techniques, and looks at every position on the way.
//
//   find_example GAMES ROUNDS SEED TECHNIQUE KIND WORDS REMOVALS PICTURE
//
// TECHNIQUE is the name of its page. KIND is "plain", for few pencilmarks; "far", for a removal far
// from the pattern; "alike"; or "game". A position that is alike gives nothing by the technique and
// would give a wrong conclusion if one thing in it were otherwise. WORDS is a text that the words
// of the hint must hold, "" for any. REMOVALS is how many pencilmarks the technique takes away in
// all, 0 for any number; for "alike" how far the removal must at least be from the pattern. A
// "game" is one whose first hint is of the technique when pencilmarks are filled in and the
// techniques whose pages WORDS names have been applied; with REMOVALS it must come to its end with
// that many hints. The first round plays the games as they are, later ones take wrong pencilmarks
// out at random, as a player's own reasoning might have. Prints the best position met as the grid
// format, what it would need where it is alike, the words of the three stages and a link for the
// page, and paints PICTURE and its dark form. The same arguments give the same example.
#include "files/text_format.h"
#include "grid/grid.h"
#include "help_example.h"
#include "help_picture.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "program/defaults.h"
#include "ui/screens/help_page.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>
#include <regex>
#include <span>
#include <string>
#include <tuple>
#include <vector>

namespace kelvarine {

namespace {

constexpr std::int32_t FullHint = 5;

struct Wish {
    const TechniqueRow *Technique = nullptr;
    std::string Kind;
    std::string Words;
    std::regex Pattern; // the same as a pattern
    int Removals = 0;
};

struct Example {
    std::tuple<int, int> Score{0, 1'000'000}; // less far, fewer pencilmarks: the less the better
    std::string Text;
    Supposition Supposed = NothingSupposed;
};

Wish wish;
Example best;
std::mt19937 source;

int Below(int count)
{
    return static_cast<int>(source() % static_cast<unsigned>(count));
}

int CountPencilmarks()
{
    int count = 0;
    for (const Cell cell : Cells) {
        const int candidates = CountCandidates(cell.Column, cell.Row);
        count += candidates > 1 ? candidates : 0;
    }
    return count;
}

// One run of the operations that the driver has for a technique.
bool Apply(const TechniqueRow &row)
{
    Flag changed = False;
    for (const Operation operation : row.DriverApply) {
        if (operation != nullptr && changed == False) {
            operation(0, changed);
        }
    }
    ClearCellBits(ScratchMarks);
    return changed != False;
}

// One step of the cheapest technique that does something. False when none does.
bool Step()
{
    for (int level = 1; level <= Levels; ++level) {
        for (const TechniqueRow &row : Techniques) {
            if (row.Level == level && Apply(row)) {
                return true;
            }
        }
    }
    return false;
}

// ---- What is looked for ----------------------------------------------------------------------

// How far the cell of the hint lies from the nearest cell of its reason, in steps of a king; of a
// hidden group, how far its cells lie apart.
int Distance()
{
    const Cell target = SelectedCell();
    int least = 9;
    int most = 0;
    for (const Cell cell : Cells) {
        if ((WordAt(cell) & HintCellBit) != 0 && cell != target) {
            const int steps =
                std::max(std::abs(cell.Column - target.Column), std::abs(cell.Row - target.Row));
            least = std::min(least, steps);
            most = std::max(most, steps);
        }
    }
    const std::int32_t number = wish.Technique->Number;
    const bool hidden = number == HiddenPair || number == HiddenTriple || number == HiddenQuad;
    return hidden ? most : least % 9;
}

int CountAll()
{
    int count = 0;
    for (const Cell cell : Cells) {
        count += CountCandidates(cell.Column, cell.Row);
    }
    return count;
}

int Removals()
{
    const GridTable kept = Grid;
    const int before = CountAll();
    Apply(*wish.Technique);
    const int after = CountAll();
    Grid = kept;
    return before - after;
}

bool HasOneSolution()
{
    CountGivens();
    RateGame();
    return GameRating >= RatedEasy && GameRating <= RatedExtreme;
}

void Offer(int distance, const std::string &text, const Supposition &supposed)
{
    const Example example{{-distance, CountPencilmarks()}, text, supposed};
    if (example.Score < best.Score && HasOneSolution()) {
        best = example;
    }
}

void LookForTechnique(const std::string &text)
{
    if (TechniqueOfHint() != wish.Technique->Number) {
        return;
    }
    const bool fits = std::regex_search(HintWords(FullHint), wish.Pattern);
    const int distance = wish.Kind == "far" ? Distance() : 0;
    if (fits && (wish.Removals == 0 || Removals() == wish.Removals)) {
        Offer(distance, text, NothingSupposed);
    }
}

// Whether the hint on Grid takes from its cell the number that the cell has in the solution.
bool IsWrong(const GridTable &solution)
{
    const Cell cell = SelectedCell();
    Apply(*wish.Technique);
    return (WordAt(cell) & solution[cell.Column][cell.Row] & CandidateMask) == 0;
}

// The numbers that stand in sight of a cell.
CellWord NumbersSeen(Cell cell)
{
    CellWord seen = 0;
    for (const Cell other : Cells) {
        const bool peer = other.Column == cell.Column || other.Row == cell.Row ||
                          BoxIndex(other.Column, other.Row) == BoxIndex(cell.Column, cell.Row);
        seen |= peer && CountCandidates(other.Column, other.Row) == 1 ? CandidatesOf(other) : 0;
    }
    return seen;
}

// The numbers that can be gone from a cell, or stand in it, in an example that is alike.
CellWord NumbersToSuppose(Cell cell, const GridTable &solution)
{
    const CellWord right = solution[cell.Column][cell.Row] & CandidateMask;
    const int candidates = CountCandidates(cell.Column, cell.Row);
    if (candidates == 0) {
        return CandidateMask & ~right & ~NumbersSeen(cell);
    }
    return candidates > 2 ? right : 0;
}

// Looks whether Grid, under a supposition, shows what is wished with a wrong conclusion.
bool MisleadsUnder(const Supposition &supposed, const GridTable &solution)
{
    const GridTable position = Grid;
    Suppose(supposed);
    const std::string words = HintWords(FullHint);
    bool misleads = !words.empty() && std::regex_search(words, wish.Pattern) &&
                    words.find("given cell") == std::string::npos;
    misleads = misleads && SelectedCell() != supposed.Where && Distance() >= wish.Removals;
    misleads = misleads && IsWrong(solution);
    Grid = position;
    return misleads;
}

void LookForAlike(const std::string &text, const GridTable &solution)
{
    if (CountPencilmarks() >= std::get<1>(best.Score)) {
        return;
    }
    const bool marked = wish.Technique->Number > HiddenSingle;
    HintBy(NakedSingle);
    const bool clean = !marked || HintWords(3).empty();
    HintBy(wish.Technique->Number);
    const bool nothing = clean && HintWords(3).empty();
    for (const Cell cell : Cells) {
        const CellWord numbers = nothing ? NumbersToSuppose(cell, solution) : 0;
        for (int number = 1; number <= 9; ++number) {
            if ((numbers & BitOf(number)) != 0 && MisleadsUnder({cell, number}, solution)) {
                HintByAll();
                Offer(0, text, {cell, number});
                return;
            }
        }
    }
    HintByAll();
}

// Looks at Grid as it reads back from its text.
void Look(const GridTable &solution)
{
    const GridTable kept = Grid;
    const std::string text = GridFormatText();
    ReadPosition(text);
    if (wish.Kind == "alike") {
        LookForAlike(text, solution);
    } else {
        LookForTechnique(text);
    }
    Grid = kept;
}

void LookForGame(const GridTable &game)
{
    const std::uint32_t mask = MaskOfPages(wish.Words);
    Grid = game;
    const std::string text = GridFormatText();
    FillAndApply(mask);
    if (TechniqueOfHint() != wish.Technique->Number) {
        return;
    }
    const int pencilmarks = CountPencilmarks();
    const auto wanted = static_cast<std::size_t>(wish.Removals);
    if (wanted > 0 && (Walk(mask, wanted + 1).size() != wanted || IsGridSolved() == False)) {
        return;
    }
    const Example example{{0, pencilmarks}, text, NothingSupposed};
    if (example.Score < best.Score) {
        best = example;
    }
}

// ---- Playing ---------------------------------------------------------------------------------

// Takes wrong candidates out at random.
void Strip(const GridTable &solution, int percent)
{
    for (const Cell cell : Cells) {
        for (int number = 1; number <= 9; ++number) {
            const bool wrong = (solution[cell.Column][cell.Row] & BitOf(number)) == 0;
            if (wrong && (WordAt(cell) & GivenBit) == 0 && Below(100) < percent) {
                WordAt(cell) &= ~BitOf(number);
            }
        }
    }
}

// Leaves the numbers of four cells of a house nowhere else in the house.
void PrepareHiddenQuad(const GridTable &solution)
{
    const House &house = Houses[static_cast<std::size_t>(Below(27))];
    std::array<Cell, 9> cells = house.Cells;
    std::shuffle(cells.begin(), cells.end(), source);
    CellWord numbers = 0;
    for (std::size_t k = 0; k < 4; ++k) {
        numbers |= solution[cells[k].Column][cells[k].Row] & CandidateMask;
    }
    for (std::size_t k = 4; k < 9; ++k) {
        WordAt(cells[k]) &= ~((WordAt(cells[k]) & GivenBit) == 0 ? numbers : 0);
    }
}

// Leaves a number in some columns or rows only where its places in them cross as many others.
void PrepareFish(const GridTable &solution, std::size_t size)
{
    const CellWord number = BitOf(1 + Below(9));
    const bool columns = Below(2) == 0;
    std::array<int, 9> lines{1, 2, 3, 4, 5, 6, 7, 8, 9};
    std::shuffle(lines.begin(), lines.end(), source);
    const auto isBase = [&](Cell cell) {
        const int line = columns ? cell.Column : cell.Row;
        return std::find(lines.begin(), lines.begin() + static_cast<int>(size), line) !=
               lines.begin() + static_cast<int>(size);
    };
    const auto coverOf = [&](Cell cell) {
        return columns ? cell.Row : cell.Column;
    };
    CellWord cover = 0;
    for (const Cell cell : Cells) {
        const bool here = (solution[cell.Column][cell.Row] & number) != 0;
        cover |= isBase(cell) && here ? BitOf(coverOf(cell)) : 0;
    }
    for (const Cell cell : Cells) {
        if (isBase(cell) && (cover & BitOf(coverOf(cell))) == 0 && (WordAt(cell) & GivenBit) == 0) {
            WordAt(cell) &= ~number;
        }
    }
}

void Prepare(const GridTable &solution)
{
    switch (wish.Technique->Number) {
    case HiddenQuad:
        PrepareHiddenQuad(solution);
        break;
    case Swordfish:
        PrepareFish(solution, 3);
        break;
    case Jellyfish:
        PrepareFish(solution, 4);
        break;
    default:
        Strip(solution, Below(25));
        break;
    }
}

GridTable SolutionOfGrid()
{
    const GridTable game = Grid;
    FillPencilmarks();
    SolveMask = CountingMask;
    ApplyLogic(2);
    const GridTable solution = Grid;
    Grid = game;
    return solution;
}

// Plays a game to its end or until the techniques come to a halt.
void Play(const GridTable &game, const GridTable &solution, bool prepared)
{
    Grid = game;
    Look(solution);
    FillPencilmarks();
    while (Apply(*FindTechnique(NakedSingle))) {
    }
    if (prepared) {
        Prepare(solution);
    }
    do {
        Look(solution);
    } while (Step() && IsGridSolved() == False);
}

// ---- What was found --------------------------------------------------------------------------

std::string LinkOf(std::string line)
{
    line.erase(line.find_last_not_of("\r\n") + 1);
    return "<a href=\"copy:" + line + "\">Copy this position</a>";
}

void Tell(const QString &picture)
{
    ReadPosition(best.Text);
    CountGivens();
    RateGame();
    std::cout << "<pre>\n" << best.Text << "</pre>\n" << LinkOf(SingleLineText()) << '\n';
    if (best.Supposed.Number != 0) {
        std::cout << "supposing " << TextOf(best.Supposed) << '\n';
        HintBy(wish.Technique->Number);
        Suppose(best.Supposed);
    }
    if (wish.Kind == "game") {
        std::cout << "rating " << GameRating << '\n';
        FillAndApply(MaskOfPages(wish.Words));
    }
    for (std::int32_t stage = 3; stage <= FullHint; ++stage) {
        std::cout << HintWords(stage) << '\n';
    }
    const PictureSubject subject{wish.Technique->Number, best.Supposed};
    HelpPicture(LightPicture, subject).save(picture, "PNG", 0);
    HelpPicture(DarkPicture, subject).save(DarkFormOf(picture), "PNG", 0);
}

void PlayAll(const char *path, int rounds)
{
    std::vector<std::pair<GridTable, GridTable>> games;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        ReadPosition(line.substr(line.find_last_of(' ') + 1));
        const GridTable game = Grid;
        games.emplace_back(game, SolutionOfGrid());
    }
    for (int round = 0; round < rounds; ++round) {
        for (const auto &[game, solution] : games) {
            if (wish.Kind == "game") {
                LookForGame(game);
            } else {
                Play(game, solution, round > 0);
            }
        }
    }
}

int Run(std::span<char *> arguments)
{
    if (arguments.size() != 9) {
        std::cerr << "find_example GAMES ROUNDS SEED TECHNIQUE plain|far|alike|game WORDS REMOVALS "
                     "PICTURE\n";
        return EXIT_FAILURE;
    }
    SetDefaults();
    source.seed(static_cast<unsigned>(std::atoi(arguments[3])));
    const TechniqueRow *row = TechniqueOfPage(arguments[4]);
    if (row == nullptr) {
        std::cerr << "no technique " << arguments[4] << '\n';
        return EXIT_FAILURE;
    }
    wish = {row, arguments[5], arguments[6], std::regex(arguments[6]), std::atoi(arguments[7])};
    PlayAll(arguments[1], std::atoi(arguments[2]));
    if (best.Text.empty()) {
        std::cerr << "none found\n";
        return EXIT_FAILURE;
    }
    Tell(QString::fromLocal8Bit(arguments[8]));
    return EXIT_SUCCESS;
}

} // namespace

} // namespace kelvarine

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return kelvarine::Run({argv, static_cast<std::size_t>(argc)});
}
