#include "game/screens.h"
#include "grid/grid.h"
#include "outside/screens.h"
#include "support/widget_program.h"
#include "support/widget_screens.h"
#include "ui/configure/configure_screen.h"
#include "ui/configure/tab_strip.h"
#include "ui/controls/finger_room.h"
#include "ui/controls/label_table.h"
#include "ui/window/board_widget.h"
#include "ui/window/toolbar_widget.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPointingDevice>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// The style of before comes back when this goes.
class KeptStyle {
public:
    KeptStyle() = default;
    KeptStyle(const KeptStyle &) = delete;
    KeptStyle &operator=(const KeptStyle &) = delete;
    ~KeptStyle()
    {
        QApplication::setStyle(former);
    }

private:
    const QString former = QApplication::style()->name();
};

std::string NameOf(const QWidget &control)
{
    return std::string(control.metaObject()->className()) + " " +
           control.objectName().toStdString();
}

// Whether a control is one that a finger presses, of a size that the style or the program decides
// on. The toolbar has a rule of its own, and a table of texts has nothing to press.
bool IsTarget(const QWidget &control)
{
    if (!control.isVisible() || qobject_cast<const ToolButtonWidget *>(&control) != nullptr ||
        qobject_cast<const LabelTable *>(&control) != nullptr) {
        return false;
    }
    return qobject_cast<const QAbstractButton *>(&control) != nullptr ||
           qobject_cast<const QScrollBar *>(&control) != nullptr ||
           (control.focusPolicy() & Qt::TabFocus) != 0;
}

void ExpectRoom(QSize size, const std::string &name)
{
    EXPECT_GE(size.width(), FingerSide) << name;
    EXPECT_GE(size.height(), FingerSide) << name;
}

void ExpectRoomInParts(const QWidget &control)
{
    if (const auto *header = qobject_cast<const QHeaderView *>(&control)) {
        if (header->isVisible()) {
            ExpectRoom({header->sectionSize(0), header->height()}, NameOf(control) + " heading");
        }
    } else if (const auto *view = qobject_cast<const QAbstractItemView *>(&control)) {
        if (view->model() != nullptr && view->model()->rowCount(view->rootIndex()) > 0) {
            const QModelIndex first = view->model()->index(0, 0, view->rootIndex());
            ExpectRoom(view->visualRect(first).size(), NameOf(control) + " row");
        }
    } else if (const auto *strip = qobject_cast<const TabStrip *>(&control)) {
        for (int tab = 0; tab < TabCount; ++tab) {
            ExpectRoom(strip->PlaceOfTab(tab).size(), "tab " + std::to_string(tab));
        }
    } else if (const auto *bar = qobject_cast<const QMenuBar *>(&control)) {
        for (QAction *action : bar->actions()) {
            if (action->isVisible() && !action->text().isEmpty()) {
                ExpectRoom(bar->actionGeometry(action).size(), action->text().toStdString());
            }
        }
    }
}

class FingerRoom : public ::testing::Test {
protected:
    FingerRoom()
    {
        QApplication::setStyle(new FingerStyle);
        program = std::make_unique<Program>();
    }

    ~FingerRoom() override
    {
        program.reset();
    }

    const KeptStyle kept;
    std::unique_ptr<Program> program;
};

TEST_F(FingerRoom, IsOnEveryWindow)
{
    int targets = 0;
    LookAtEveryWindow(*program->Main, [&](QWidget &window) {
        for (const QWidget *control : window.findChildren<QWidget *>()) {
            ExpectRoomInParts(*control);
            if (control->window() == &window && IsTarget(*control)) {
                ++targets;
                ExpectRoom(control->size(), NameOf(*control));
            }
        }
    });
    EXPECT_GT(targets, 200);
}

TEST_F(FingerRoom, IsInEveryMenu)
{
    int entries = 0;
    for (QMenu *menu : program->Main->menuBar()->findChildren<QMenu *>()) {
        for (QAction *entry : menu->actions()) {
            if (!entry->isSeparator()) {
                ++entries;
                ExpectRoom(menu->actionGeometry(entry).size(), entry->text().toStdString());
            }
        }
    }
    EXPECT_GT(entries, 50);
}

TEST_F(FingerRoom, LinesBetweenEntriesStayAsTheyAre)
{
    int lines = 0;
    const QStyle *usual = qobject_cast<QProxyStyle *>(QApplication::style())->baseStyle();
    for (const QMenu *menu : program->Main->menuBar()->findChildren<QMenu *>()) {
        for (QAction *entry : menu->actions()) {
            if (entry->isSeparator()) {
                ++lines;
                QStyleOptionMenuItem line;
                line.initFrom(menu);
                line.menuItemType = QStyleOptionMenuItem::Separator;
                EXPECT_EQ(menu->actionGeometry(entry).height(),
                          usual->sizeFromContents(QStyle::CT_MenuItem, &line, {}, menu).height())
                    << menu->title().toStdString();
            }
        }
    }
    EXPECT_GT(lines, 5);
}

TEST_F(FingerRoom, PressAtTheEdgeOfABoxIsOneOnIt)
{
    CurrentTab = LogicTab;
    ShowConfigureScreen();
    auto *box = OpenConfigureScreen()->findChild<QCheckBox *>("chkUseLogic1");
    ASSERT_NE(box, nullptr);
    for (const QPoint edge : {QPoint(1, 1), QPoint(FingerSide - 2, FingerSide - 2)}) {
        const bool before = box->isChecked();
        QTest::mouseClick(box, Qt::LeftButton, {}, edge);
        EXPECT_NE(box->isChecked(), before);
    }
    delete OpenConfigureScreen();
}

TEST(FingerStyles, AreForScreensThatHaveTouchAlone)
{
    const KeptStyle kept;
    MakeRoomForFingers();
    EXPECT_EQ(WithRoomForFinger(20), 20);
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    MakeRoomForFingers();
    EXPECT_EQ(WithRoomForFinger(20), FingerSide);
    EXPECT_EQ(WithRoomForFinger(FingerSide + 6), FingerSide + 6);
}

TEST(FingerStyles, LeaveTheRestToTheStyleThatIsThere)
{
    const KeptStyle kept;
    auto *there = new QProxyStyle(QStyleFactory::create("fusion"));
    QApplication::setStyle(there);
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    MakeRoomForFingers();
    const auto *above = qobject_cast<const FingerStyle *>(QApplication::style());
    ASSERT_NE(above, nullptr);
    EXPECT_EQ(above->baseStyle(), there);
    MakeRoomForFingers();
    EXPECT_EQ(QApplication::style(), above) << "once is enough";
}

} // namespace
} // namespace kelvarine::testing
