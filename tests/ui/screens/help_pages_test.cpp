// What the pages of the help promise, held against the game.
#include "commands/text_commands.h"
#include "files/file_dialog.h"
#include "files/text_format.h"
#include "game/alert_scan.h"
#include "grid/grid.h"
#include "grid/rating_words.h"
#include "help_example.h"
#include "input/keys.h"
#include "input/menu_table.h"
#include "input/toolbar.h"
#include "logic/technique_table.h"
#include "outside/clipboard.h"
#include "outside/help.h"
#include "support/positions.h"
#include "support/widget_program.h"
#include "ui/screens/file_dialog_qt.h"
#include "ui/screens/help_collection.h"
#include "ui/screens/help_window.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QHelpLink>
#include <QLabel>
#include <QRegularExpression>
#include <QShortcut>
#include <QTabBar>
#include <gtest/gtest.h>

#include <map>

namespace kelvarine::testing {

namespace {

struct HelpPages : ::testing::Test {
    std::unique_ptr<HelpCollection> Help = OpenHelp(HelpFolder());

    [[nodiscard]] QUrl UrlOf(const QString &file) const
    {
        return PageOfContext(*Help->Engine, 0).resolved(QUrl(file));
    }

    [[nodiscard]] QString Page(const QString &file) const
    {
        return QString::fromUtf8(Help->Engine->fileData(UrlOf(file)));
    }

    [[nodiscard]] QStringList Files() const
    {
        QStringList names;
        for (const QUrl &url : Help->Engine->files(QStringLiteral("kelvarine"), QStringList(),
                                                   QStringLiteral("html"))) {
            names += url.fileName();
        }
        return names;
    }
};

QStringList Captures(const QString &text, const char *pattern)
{
    QStringList found;
    auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (matches.hasNext()) {
        found += matches.next().captured(1);
    }
    return found;
}

QString Project()
{
    QFile file(HelpFolder() + QStringLiteral("kelvarine.qhp"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

// Words of a hint as the game shows them.
std::string AsShown(const std::string &words)
{
    return QString::fromStdString(words)
        .replace(QStringLiteral("a 8"), QStringLiteral("an 8"))
        .toStdString();
}

// Pastes a position of a page as a reader does, and takes it for a sound game.
void Paste(const QString &page, int which)
{
    SetClipboardText(PositionOf(page.toStdString(), which));
    mnuGameClipboard();
    EXPECT_GE(GameRating, RatedEasy);
    EXPECT_LE(GameRating, RatedExtreme) << "the position has one solution";
}

QString Word(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A key as the page of the keyboard names it.
QString KeyName(std::int32_t code)
{
    static const std::map<std::int32_t, const char *> names{
        {27, "Esc"},
        {ShiftCode, "Shift"},
        {CtrlCode, "Ctrl"},
        {LeftCode, "Left"},
        {UpCode, "Up"},
        {RightCode, "Right"},
        {DownCode, "Down"},
        {PageUpCode, "Page Up"},
        {PageDownCode, "Page Down"},
        {InsertCode, "Insert"},
        {DeleteCode, "Delete"},
        {KeypadMinusCode, "-"},
        {MinusCode, "-"},
    };
    const auto name = names.find(code);
    if (name != names.end()) {
        return QString::fromLatin1(name->second);
    }
    const bool letter = code >= 'A' && code <= 'Z';
    return letter ? QString(QChar(static_cast<char16_t>(code))) : QString();
}

// Whether the first cells of rows of tables name a key.
bool NamesKey(const QString &cells, const QString &key)
{
    return cells.contains(QRegularExpression(
        QStringLiteral("(^|[ +,])%1($|[ ,])").arg(QRegularExpression::escape(key))));
}

// The first cells of the tables under a heading of a page.
QString KeysUnder(const QString &page, const QString &heading)
{
    const QString section = page.section(QStringLiteral("<h2>%1</h2>").arg(heading), 1, 1)
                                .section(QStringLiteral("<h2>"), 0, 0);
    return Captures(section, "<tr><td>([^<]*)</td>").join(QStringLiteral(", "));
}

// All keys that a window and its controls listen to, of an entry with several the first.
QStringList KeysOf(const QWidget &window)
{
    QList<QKeySequence> keys;
    for (const auto *shortcut : window.findChildren<QShortcut *>()) {
        keys += shortcut->key();
    }
    for (const auto *button : window.findChildren<QAbstractButton *>()) {
        keys += button->shortcut();
    }
    for (const auto *action : window.findChildren<QAction *>()) {
        keys += action->shortcut();
    }
    for (const auto *label : window.findChildren<QLabel *>()) {
        keys += label->buddy() != nullptr ? QKeySequence::mnemonic(label->text()) : QKeySequence();
    }
    for (const auto *bar : window.findChildren<QTabBar *>()) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            keys += QKeySequence::mnemonic(bar->tabText(tab));
        }
    }
    keys.removeAll(QKeySequence());
    QStringList names;
    for (const QKeySequence &key : keys) {
        names += key.toString();
    }
    return names;
}

} // namespace

TEST_F(HelpPages, EveryLinkAndPictureLeadsSomewhere)
{
    ASSERT_NE(Help, nullptr);
    const Program program;
    int links = 0;
    for (const QString &file : Files()) {
        for (const QString &link : Captures(Page(file), "(?:href|src)=\"([^\"]*)\"")) {
            ++links;
            if (link.startsWith(QStringLiteral("copy:"))) {
                EXPECT_EQ(ReadPosition(QUrl(link).path().toStdString()), 81)
                    << file.toStdString() << " copies " << link.toStdString();
            } else {
                EXPECT_FALSE(Help->Engine->fileData(UrlOf(link)).isEmpty())
                    << file.toStdString() << " leads to " << link.toStdString();
            }
        }
    }
    EXPECT_GT(links, 150);
}

TEST_F(HelpPages, ContentsAndIndexLeadToPagesAndNoPageIsForgotten)
{
    ASSERT_NE(Help, nullptr);
    const QString project = Project();
    for (const QString &page : Captures(project, "ref=\"([^\"]*)\"")) {
        EXPECT_FALSE(Page(page).isEmpty()) << page.toStdString();
    }
    QStringList contents = Captures(project, "<section [^>]*ref=\"([^\"]*)\"");
    contents.removeDuplicates();
    for (const QString &file : Files()) {
        EXPECT_TRUE(contents.contains(file)) << file.toStdString() << " is not in the contents";
    }
    EXPECT_EQ(Files().size(), contents.size());
}

TEST_F(HelpPages, EveryWordOfTheIndexLeadsToOnePage)
{
    ASSERT_NE(Help, nullptr);
    const QStringList words = Captures(Project(), "<keyword name=\"([^\"]*)\"");
    EXPECT_GT(words.size(), 80);
    for (const QString &word : words) {
        EXPECT_EQ(Help->Engine->documentsForKeyword(word).size(), 1) << word.toStdString();
    }
}

TEST_F(HelpPages, EveryPageHasATitleOfItsOwn)
{
    ASSERT_NE(Help, nullptr);
    QStringList titles;
    for (const QString &file : Files()) {
        const QStringList title = Captures(Page(file), "<title>([^<]+)</title>");
        ASSERT_EQ(title.size(), 1) << file.toStdString();
        EXPECT_TRUE(Page(file).contains(QStringLiteral("<h1>%1</h1>").arg(title.front())));
        titles += title;
    }
    titles.removeDuplicates();
    EXPECT_EQ(titles.size(), Files().size());
}

TEST_F(HelpPages, EveryContextHasItsTopic)
{
    ASSERT_NE(Help, nullptr);
    const std::map<int, const char *> pages{
        {0, "index.html"},
        {202, "settings-new-games.html"},
        {204, "settings-sound.html"},
        {206, "settings-print.html"},
        {208, "settings-logic.html"},
        {210, "settings-preset-grids.html"},
        {212, "settings-grid.html"},
        {214, "settings-colors.html"},
        {216, "settings-coordinates.html"},
        {600, "files.html"},
        {201, "index.html"}, // no topic has this number
        {-1, "index.html"},
    };
    for (const auto &[context, page] : pages) {
        EXPECT_EQ(PageOfContext(*Help->Engine, context).fileName().toStdString(), page);
    }
}

TEST_F(HelpPages, EveryTechniquePageOffersThreePositionsWithAPictureEach)
{
    ASSERT_NE(Help, nullptr);
    const Program program;
    for (const TechniqueRow &row : Techniques) {
        const QString name = Word(row.HelpPage);
        const QString page = Page(name + QStringLiteral(".html"));
        const QStringList pictures{name + QStringLiteral(".png"), name + QStringLiteral("-2.png"),
                                   name + QStringLiteral("-3.png")};
        EXPECT_EQ(Captures(page, "src=\"([^\"]*)\""), pictures) << row.HelpPage;
        const QStringList links = Captures(page, "href=\"copy:([^\"]*)\"");
        ASSERT_EQ(links.size(), 3) << row.HelpPage;
        for (int which = 1; which <= 3; ++which) {
            ASSERT_EQ(ReadPosition(PositionOf(page.toStdString(), which)), 81) << row.HelpPage;
            const GridTable position = Grid;
            ReadPosition(QUrl::fromPercentEncoding(links[which - 1].toLatin1()).toStdString());
            EXPECT_EQ(Grid, position) << row.HelpPage << ", link " << which;
        }
    }
}

TEST_F(HelpPages, ExamplesOfATechniqueShowItWhereNothingSimplerIsFound)
{
    ASSERT_NE(Help, nullptr);
    for (const TechniqueRow &row : Techniques) {
        const QString page = Page(Word(row.HelpPage) + QStringLiteral(".html"));
        for (int which = 1; which <= 2; ++which) {
            SCOPED_TRACE(std::string(row.HelpPage) + ' ' + std::to_string(which));
            const Program program;
            Paste(page, which);
            EXPECT_EQ(TechniqueOfHint(), row.Number);
            for (const std::int32_t stage : which == 1 ? std::vector{3, 4, 5} : std::vector{5}) {
                const std::string words = AsShown(HintWords(stage));
                EXPECT_FALSE(words.empty());
                EXPECT_TRUE(page.contains(QString::fromStdString(words))) << words;
            }
            EXPECT_TRUE(page.contains(QString::fromStdString("<b>" + HintTitle + "</b>")));
            AlertMask = BitOf(row.Number);
            ScanAlerts(1);
            EXPECT_NE(CellsWith(AlertBit), "") << "alerts of the technique alone";
        }
    }
}

TEST_F(HelpPages, LookAlikesOfATechniqueGiveNothingButWouldMislead)
{
    ASSERT_NE(Help, nullptr);
    for (const TechniqueRow &row : Techniques) {
        SCOPED_TRACE(row.HelpPage);
        const Program program;
        const QString page = Page(Word(row.HelpPage) + QStringLiteral(".html"));
        Paste(page, 3);
        AlertMask = BitOf(row.Number);
        ScanAlerts(1);
        EXPECT_EQ(CellsWith(AlertBit), "");
        HintBy(row.Number);
        EXPECT_EQ(HintWords(3), "");

        const Supposition supposed =
            SuppositionOf(PositionAttribute(page.toStdString(), 3, "title"));
        ASSERT_NE(supposed.Number, 0);
        const CellWord spoiler = WordAt(supposed.Where);
        const bool wasThere = (spoiler & BitOf(supposed.Number)) != 0;
        EXPECT_EQ(SolutionOf(spoiler) == BitOf(supposed.Number), wasThere);
        Suppose(supposed);
        ASSERT_NE(HintWords(5), "") << "what it would need is not enough";
        const Cell target = SelectedCell();
        const CellWord right = SolutionOf(WordAt(target));
        Flag found = False;
        for (const Operation operation : row.DriverApply) {
            if (operation != nullptr && found == False) {
                operation(0, found);
            }
        }
        EXPECT_EQ(WordAt(target) & right, 0U) << "the conclusion is wrong";
        for (const std::string &part :
             {ShortName(supposed.Where), ShortName(target), std::to_string(LowestCandidate(right)),
              std::to_string(supposed.Number)}) {
            EXPECT_TRUE(
                Captures(page, "alt=\"[^\"]*only looks like[^\"]*\"></div>([\\s\\S]*?)<a href")
                    .join(QString())
                    .contains(QString::fromStdString(part)))
                << part;
        }
    }
}

TEST_F(HelpPages, TechniquePageTellsItsLevelAndItsRowOfTheLogicTab)
{
    ASSERT_NE(Help, nullptr);
    for (const TechniqueRow &row : Techniques) {
        const QString page = Page(Word(row.HelpPage) + QStringLiteral(".html")).simplified();
        const QString level = Word(WordsOfRating(row.Level).Capital);
        EXPECT_TRUE(page.contains(QStringLiteral("level is <b>%1</b>").arg(level)));
        EXPECT_TRUE(
            page.contains(QStringLiteral("its row is <b>%1</b>").arg(Word(row.Caption).trimmed())));
        EXPECT_TRUE(Page(QStringLiteral("techniques.html"))
                        .contains(QStringLiteral("</a></td><td>%1</td>").arg(level)))
            << row.HelpPage;
    }
}

TEST_F(HelpPages, KeyboardPageAndReferenceHoldEveryShortcutOfTheMenus)
{
    ASSERT_NE(Help, nullptr);
    const QString keyboard = Page(QStringLiteral("keyboard.html"));
    const QString reference = Page(QStringLiteral("reference.html"));
    int shortcuts = 0;
    for (const MenuRow &row : MenuTable) {
        if (row.Shortcut.empty()) {
            continue;
        }
        ++shortcuts;
        const auto filled = [](std::string_view text, std::int32_t number) {
            return QRegularExpression::escape(Word(WithNumber(text, number)).remove(u'&'));
        };
        const QString keys = filled(row.Shortcut, row.First);
        const QString words = filled(row.Caption, row.First);
        const QRegularExpression line(
            QStringLiteral("<tr><td>%1(?: to %2)?</td><td>[^<]*%3[^<]*</td>")
                .arg(keys, filled(row.Shortcut, row.Last), words));
        EXPECT_TRUE(keyboard.contains(line)) << row.Name << ": " << row.Shortcut;
        EXPECT_TRUE(reference.contains(line)) << row.Name << ": " << row.Shortcut;
    }
    EXPECT_GT(shortcuts, 20);
}

TEST_F(HelpPages, KeyboardPageAndReferenceNameEveryKeyOfTheBoard)
{
    ASSERT_NE(Help, nullptr);
    for (const char *page : {"keyboard.html", "reference.html"}) {
        const QString cells = Captures(Page(QString::fromLatin1(page)), "<tr><td>([^<]*)</td>")
                                  .join(QStringLiteral(", "));
        for (const KeyRow &row : KeyTable) {
            if (row.Run == nullptr) {
                continue; // a combination that is kept from doing anything
            }
            const QString key = KeyName(row.Code);
            ASSERT_FALSE(key.isEmpty()) << "no name for key " << row.Code;
            EXPECT_TRUE(NamesKey(cells, key)) << page << ' ' << key.toStdString();
        }
    }
}

TEST_F(HelpPages, KeyboardPageNamesEveryKeyOfTheFileWindowAndOfTheHelp)
{
    ASSERT_NE(Help, nullptr);
    const Program program;
    const FileDialog dialog(program.Main.get(), SudokuFiles);
    ShowHelpTopic(0);
    const std::unique_ptr<HelpWindow> help(OpenHelpWindow());
    ASSERT_NE(help, nullptr);
    const auto expectKeys = [this](const QString &heading, const QStringList &keys) {
        const QString cells = KeysUnder(Page(QStringLiteral("keyboard.html")), heading);
        for (const QString &key : keys) {
            EXPECT_TRUE(NamesKey(cells, key)) << key.toStdString();
        }
    };
    const QStringList fileKeys = KeysOf(dialog);
    EXPECT_EQ(fileKeys.size(), 11) << fileKeys.join(u' ').toStdString();
    expectKeys(QStringLiteral("In the file window"), fileKeys);
    // Those that the lists, the name and every such window take by themselves.
    expectKeys(QStringLiteral("In the file window"),
               {QStringLiteral("Backspace"), QStringLiteral("Delete"), QStringLiteral("Up"),
                QStringLiteral("Down"), QStringLiteral("Enter"), QStringLiteral("Esc")});
    const QStringList helpKeys = KeysOf(*help);
    EXPECT_EQ(helpKeys.size(), 14) << helpKeys.join(u' ').toStdString();
    expectKeys(QStringLiteral("In the help"), helpKeys);
}

TEST_F(HelpPages, ReferenceTellsEveryModeOfTheToolbarAndThePressesOfTheMouse)
{
    ASSERT_NE(Help, nullptr);
    const Program program;
    const QString page = Page(QStringLiteral("reference.html"));
    int modes = 0;
    for (const std::int32_t button : {SelectButton, EditButton, ViewButton}) {
        for (int press = 0; press < 4; ++press) {
            ToolPressed(button);
            const std::string &mode = ToolButtons[static_cast<std::size_t>(button)].Caption;
            EXPECT_TRUE(page.contains(QString::fromStdString("<tr><td>" + mode + "</td>"))) << mode;
            ++modes;
        }
    }
    EXPECT_EQ(modes, 12);
    for (const char *press : {"Click", "Ctrl and click", "Shift and click", "Drag",
                              "Right click on a pencilmark", "Double click on a pencilmark"}) {
        EXPECT_TRUE(page.contains(QStringLiteral("<tr><td>%1</td>").arg(QLatin1String(press))))
            << press;
    }
}

} // namespace kelvarine::testing
