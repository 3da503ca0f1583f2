#include "ui/configure/preset_tab.h"

#include "configure/presets.h"
#include "paint/text.h"
#include "ui/configure/grid_tab.h"
#include "ui/controls/configure_controls.h"
#include "ui/controls/preset_pictures.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include <array>
#include <functional>
#include <utility>

namespace kelvarine {

namespace {

constexpr int PictureSide = 130;
constexpr int PicturesInRow = 3;
constexpr int Distance = 14; // between pictures, with room for the mark
constexpr QMargins MarkDistance{5, 5, 4, 4};

class PresetView : public QWidget {
public:
    PresetView(QWidget *parent, std::int32_t presetNumber, std::function<void()> chooseIt,
               std::function<void()> markIt)
        : QWidget(parent), number(presetNumber), choose(std::move(chooseIt)),
          mark(std::move(markIt))
    {
        setObjectName(IndexedName("picPresetGrid", number));
        setAccessibleName(Text("Preset grid %1").arg(number + 1));
        setFixedSize(PictureSide, PictureSide);
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.drawImage(0, 0, PresetPicture(number, PictureSide, devicePixelRatioF()));
    }

    void mousePressEvent(QMouseEvent * /*event*/) override
    {
        setFocus(Qt::MouseFocusReason);
        choose();
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            choose();
            break;
        default:
            event->ignore();
        }
    }

    void focusInEvent(QFocusEvent * /*event*/) override
    {
        mark();
    }

private:
    std::int32_t number;
    std::function<void()> choose;
    std::function<void()> mark;
};

class PresetPanel : public QWidget {
public:
    explicit PresetPanel(QWidget *parent) : QWidget(parent)
    {
        auto *grid = new QGridLayout(this);
        grid->setSpacing(Distance);
        for (std::int32_t number = 0; number < OfferedPresets; ++number) {
            auto *view = new PresetView(
                this, number, [this, number] { Choose(number); }, [this, number] { Mark(number); });
            views[static_cast<std::size_t>(number)] = view;
            grid->addWidget(view, number / PicturesInRow, number % PicturesInRow);
        }
        grid->setRowStretch(OfferedPresets / PicturesInRow + 1, 1);
        grid->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        if (marked == nullptr) {
            return;
        }
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawRect(marked->geometry().marginsAdded(MarkDistance).adjusted(0, 0, -1, -1));
    }

private:
    void Mark(std::int32_t number)
    {
        marked = views[static_cast<std::size_t>(number)];
        update();
    }

    void Choose(std::int32_t number)
    {
        if (ChangesCount()) {
            ApplyPreset(number);
            ShowPresetOnGridTab(*window());
        }
    }

    std::array<QWidget *, OfferedPresets> views{};
    QWidget *marked = nullptr; // the picture that had the focus latest
};

} // namespace

QWidget *MakePresetTab(QWidget *parent)
{
    return new PresetPanel(parent);
}

} // namespace kelvarine
