#include "ui/window/board_accessible.h"

#include "board/geometry.h"
#include "grid/grid.h"
#include "input/spoken.h"
#include "paint/text.h"
#include "ui/window/board_widget.h"
#include "ui/window/main_window.h"

#include <QAccessibleWidget>

#include <array>

namespace kelvarine {

namespace {

constexpr int CellCount = 81;

// Tools read row by row.
Cell CellOfChild(int child)
{
    return MakeCell(child % 9 + 1, child / 9 + 1);
}

int ChildOf(Cell cell)
{
    return (cell.Row - 1) * 9 + cell.Column - 1;
}

QAccessibleInterface *BoardInterface()
{
    return Window() == nullptr ? nullptr
                               : QAccessible::queryAccessibleInterface(Window()->Client->Board);
}

// The toolkit wants an object of this kind for each thing that it tells tools about.
class CellAccessible : public QAccessibleInterface {
public:
    explicit CellAccessible(Cell cell) : place(cell)
    {
    }

    [[nodiscard]] bool isValid() const override
    {
        return Window() != nullptr;
    }
    [[nodiscard]] QObject *object() const override
    {
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return BoardInterface();
    }
    [[nodiscard]] QAccessibleInterface *child(int /*index*/) const override
    {
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface *childAt(int /*x*/, int /*y*/) const override
    {
        return nullptr;
    }
    [[nodiscard]] int childCount() const override
    {
        return 0;
    }
    int indexOfChild(const QAccessibleInterface * /*child*/) const override
    {
        return -1;
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        return QAccessible::Cell;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? Text(SpokenCell(place)) : QString();
    }

    void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override
    {
    }

    [[nodiscard]] QRect rect() const override
    {
        const QRect inBoard(CellX(place.Column), CellY(place.Row), CellWidth, CellHeight);
        return inBoard.translated(Window()->Client->Board->mapToGlobal(QPoint(0, 0)));
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.selectable = true;
        state.multiSelectable = true;
        state.focusable = true;
        state.readOnly = (WordAt(place) & GivenBit) != 0;
        state.selected = (WordAt(place) & SelectedBit) != 0;
        state.focused = Window()->Client->Board->hasFocus() && SpokenPlace() == place;
        return state;
    }

private:
    Cell place;
};

class BoardAccessible : public QAccessibleWidget {
public:
    explicit BoardAccessible(QWidget *board) : QAccessibleWidget(board, QAccessible::Table)
    {
        for (int child = 0; child < CellCount; ++child) {
            cells[static_cast<std::size_t>(child)] =
                QAccessible::registerAccessibleInterface(new CellAccessible(CellOfChild(child)));
        }
    }

    BoardAccessible(const BoardAccessible &) = delete;
    BoardAccessible &operator=(const BoardAccessible &) = delete;

    ~BoardAccessible() override
    {
        for (const QAccessible::Id cell : cells) {
            QAccessible::deleteAccessibleInterface(cell);
        }
    }

    [[nodiscard]] int childCount() const override
    {
        return CellCount;
    }

    [[nodiscard]] QAccessibleInterface *child(int index) const override
    {
        return index >= 0 && index < CellCount
                   ? QAccessible::accessibleInterface(cells[static_cast<std::size_t>(index)])
                   : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int index = 0; index < CellCount; ++index) {
            if (this->child(index) == child) {
                return index;
            }
        }
        return -1;
    }

    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override
    {
        const QPoint point = widget()->mapFromGlobal(QPoint(x, y));
        const std::optional<Cell> cell = CellAt(point.x(), point.y());
        return cell ? child(ChildOf(*cell)) : nullptr;
    }

    [[nodiscard]] QAccessibleInterface *focusChild() const override
    {
        const std::optional<Cell> place = SpokenPlace();
        return widget()->hasFocus() && place ? child(ChildOf(*place)) : nullptr;
    }

private:
    std::array<QAccessible::Id, CellCount> cells{};
};

QAccessibleInterface *Describe(const QString & /*kind*/, QObject *object)
{
    auto *board = qobject_cast<BoardWidget *>(object);
    return board == nullptr ? nullptr : new BoardAccessible(board);
}

} // namespace

void DescribeBoardToTools()
{
    [[maybe_unused]] static const bool done = [] {
        QAccessible::installFactory(Describe);
        return true;
    }();
}

void AnnounceBoard()
{
    const SpokenChange change = NextSpokenChange();
    if (change == SpokenChange::None || Window() == nullptr) {
        return;
    }
    QAccessibleEvent event(Window()->Client->Board, change == SpokenChange::Place
                                                        ? QAccessible::Focus
                                                        : QAccessible::NameChanged);
    event.setChild(ChildOf(*SpokenPlace()));
    QAccessible::updateAccessibility(&event);
}

} // namespace kelvarine
