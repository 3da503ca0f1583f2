#include "support/widget_configure.h"

#include "board/geometry.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "grid/colour.h"
#include "grid/history.h"
#include "outside/board.h"
#include "outside/screens.h"
#include "paint/board_painter.h"
#include "support/play.h"
#include "support/positions.h"
#include "ui/controls/colour_swatches.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QStyleOptionSlider>

namespace kelvarine::testing {

namespace {

// Middle of the thumb of a horizontal bar at a value.
QPoint ThumbAt(const QScrollBar &bar, int value)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Horizontal;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.singleStep = bar.singleStep();
    option.pageStep = bar.pageStep();
    option.sliderPosition = value;
    option.sliderValue = value;
    option.state |= QStyle::State_Horizontal;
    option.subControls = QStyle::SC_All;
    return bar.style()
        ->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar)
        .center();
}

} // namespace

QByteArray Name(const char *array, int k)
{
    return QByteArray(array) + QByteArray::number(k);
}

void ConfigureTest::SetUp()
{
    Running = std::make_unique<Program>();
    SetGame(EasyGame);
    StartGame(NewGame);
    GameModified = False;
    DrawBoard();
}

void ConfigureTest::TearDown()
{
    Running.reset();
    EXPECT_EQ(OpenConfigureScreen(), nullptr);
}

void ConfigureTest::Open(std::int32_t tab)
{
    CurrentTab = tab;
    ShowConfigureScreen();
    Screen = OpenConfigureScreen();
    ASSERT_NE(Screen, nullptr);
    QCoreApplication::processEvents();
}

void ConfigureTest::Close()
{
    Screen->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Screen = nullptr;
}

void ConfigureTest::Click(const char *name)
{
    auto *control = Find<QWidget>(name);
    ASSERT_TRUE(control->isVisible()) << name;
    QPoint place = control->rect().center();
    if (control->inherits("QCheckBox") || control->inherits("QRadioButton")) {
        place.setX(8);
    }
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, place);
}

void ConfigureTest::Type(const char *name, const char *text)
{
    auto *box = Find<QLineEdit>(name);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
}

void ConfigureTest::Drag(const char *name, int value)
{
    auto *bar = Find<QScrollBar>(name);
    const QPoint from = ThumbAt(*bar, bar->value());
    const QPoint to = ThumbAt(*bar, value);
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(bar, (from + to) / 2);
    QTest::mouseMove(bar, to);
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, to);
    // A thumb has fewer places than a bar has values; the arrow keys do the rest.
    while (bar->value() < value && bar->value() + bar->singleStep() <= value) {
        QTest::keyClick(bar, Qt::Key_Right);
    }
    while (bar->value() > value && bar->value() - bar->singleStep() >= value) {
        QTest::keyClick(bar, Qt::Key_Left);
    }
}

void Operate(QWidget &control)
{
    if (auto *bar = qobject_cast<QScrollBar *>(&control)) {
        bar->setValue(bar->value() == bar->maximum() ? bar->minimum() : bar->value() + 1);
    } else if (auto *box = qobject_cast<QLineEdit *>(&control)) {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, box->text() == "7" ? "3" : "7");
    } else if (auto *list = qobject_cast<QComboBox *>(&control)) {
        list->setCurrentIndex(list->currentIndex() == 0 ? list->count() - 1 : 0);
    } else if (auto *tile = qobject_cast<TextureTile *>(&control)) {
        QTest::mouseClick(tile, Qt::LeftButton);
    } else if (qobject_cast<QCheckBox *>(&control) != nullptr ||
               control.objectName() == "cmdCoordFirst") {
        qobject_cast<QAbstractButton *>(&control)->click();
    }
}

Colour PaintedIn(Cell cell)
{
    constexpr int inside = 5;
    return BoardPicture().pixel(CellX(cell.Column) + inside, CellY(cell.Row) + inside) & 0xFFFFFF;
}

QImage PaintedNow()
{
    return BoardPicture().copy();
}

bool Holds(const QImage &picture, Colour colour)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if ((picture.pixel(x, y) & RGB_MASK) == colour) {
                return true;
            }
        }
    }
    return false;
}

} // namespace kelvarine::testing
