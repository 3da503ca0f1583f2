#include "ui/configure/colours_tab.h"

#include "configure/look_settings.h"
#include "grid/colour.h"
#include "paint/text.h"
#include "paint/toolkit_colour.h"
#include "ui/controls/colour_swatches.h"
#include "ui/controls/configure_controls.h"
#include "ui/controls/palette_picture.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <array>
#include <functional>
#include <utility>

namespace kelvarine {

std::size_t ColourIndex;

namespace {

constexpr int OptionWidth = 156; // from its left to that of its swatch
constexpr QSize PaletteSize{148, 228};
constexpr int TilesBelowPalette = 11;
constexpr int TilesIndent = 2;
constexpr int TileColumns = 3;
constexpr int Tiles = TextureRange.Most; // the last tile of the strip cannot be chosen
constexpr BarSteps ColourSteps{255, 1, 10};
constexpr std::array<const char *, 3> BarCaptions{"Red", "Green", "Blue"};

class PaletteView : public QWidget {
public:
    PaletteView(QWidget *parent, std::function<void(Colour)> pickColour)
        : QWidget(parent), picture(PalettePicture(PaletteSize.width(), PaletteSize.height())),
          pick(std::move(pickColour))
    {
        setObjectName("picColorpal");
        setAccessibleName("Color palette");
        setFixedSize(PaletteSize);
        setCursor(Qt::CrossCursor);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.drawImage(0, 0, picture);
    }

    void mousePressEvent(QMouseEvent *event) override
    {
        const QPoint place = event->position().toPoint();
        if (picture.valid(place) && ChangesCount()) {
            pick(ColourOf(picture.pixel(place)));
        }
    }

private:
    QImage picture;
    std::function<void(Colour)> pick;
};

class ColoursPanel : public QWidget {
public:
    explicit ColoursPanel(QWidget *parent);

    void ShowColour();

private:
    QLayout *MakeOptionColumn();
    QLayout *MakePickers();
    QLayout *MakeBars();
    void TakeBars();
    void TakeColour(Colour colour);
    void TakeTexture(int tile);

    void ShowTextures();
    void ShowSwatches();

    std::array<QScrollBar *, 3> bars{};
    std::array<ColourSwatch *, ColourCount> swatches{};
    std::array<TextureTile *, Tiles> tiles{};
};

ColoursPanel::ColoursPanel(QWidget *parent) : QWidget(parent)
{
    ColourIndex = 0;
    auto *rows = new QVBoxLayout(this);
    auto *columns = new QHBoxLayout;
    columns->addLayout(MakeOptionColumn());
    columns->addStretch();
    columns->addLayout(MakePickers());
    rows->addLayout(columns);
    rows->addSpacing(6);
    rows->addLayout(MakeBars());
    rows->addStretch();
    ShowColour();
}

QLayout *ColoursPanel::MakeOptionColumn()
{
    auto *grid = new QGridLayout;
    auto *group = new QButtonGroup(this);
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(5);
    grid->setColumnMinimumWidth(0, OptionWidth);
    for (std::size_t k = 0; k < ColourCaptions.size(); ++k) {
        const int row = static_cast<int>(k);
        auto *option = new QRadioButton(Text(ColourCaptions[k]), this);
        option->setObjectName(IndexedName("optTableColors", row));
        option->setAccessibleName(SpokenText(ColourCaptions[k]));
        option->setChecked(k == ColourIndex);
        group->addButton(option, row);
        auto *swatch = new ColourSwatch(this, k);
        swatch->setToolTip("A press gives the chosen color the one that is seen here");
        swatches[k] = swatch;
        connect(swatch, &QAbstractButton::pressed, this, [this, k] { TakeColour(ColourTable[k]); });
        grid->addWidget(option, row, 0);
        grid->addWidget(swatch, row, 1);
        grid->setRowMinimumHeight(row, option->sizeHint().height() + 4);
    }
    MakeOneStop(*group);
    PressButton::MakeOneStop({swatches.begin(), swatches.end()}, 1);
    const auto show = [group](int id) {
        ChooseOption(*group, id);
    };
    const auto choose = [this](int id) {
        ColourIndex = static_cast<std::size_t>(id);
        ShowColour();
    };
    connect(group, &QButtonGroup::idToggled, this,
            [take = HandingOn(group->checkedId(), show, choose)](int id, bool checked) mutable {
                if (checked) {
                    take(id);
                }
            });
    return grid;
}

QLayout *ColoursPanel::MakePickers()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(new PaletteView(this, [this](Colour colour) { TakeColour(colour); }));
    column->addSpacing(TilesBelowPalette);
    auto *grid = new QGridLayout;
    grid->setSpacing(0);
    grid->setContentsMargins(TilesIndent, 0, 0, 0);
    for (int number = 0; number < Tiles; ++number) {
        auto *tile = new TextureTile(this, number);
        connect(tile, &QAbstractButton::pressed, this, [this, number] { TakeTexture(number); });
        grid->addWidget(tile, number / TileColumns, number % TileColumns);
        tiles[static_cast<std::size_t>(number)] = tile;
    }
    PressButton::MakeOneStop({tiles.begin(), tiles.end()}, TileColumns);
    grid->setColumnStretch(TileColumns, 1);
    column->addLayout(grid);
    column->addStretch();
    return column;
}

QLayout *ColoursPanel::MakeBars()
{
    auto *grid = new QGridLayout;
    for (std::size_t k = 0; k < bars.size(); ++k) {
        const int row = static_cast<int>(k);
        bars[k] = MakeBar(this, IndexedName("hsbColor", row),
                          Text("%1, 0 to %2").arg(Text(BarCaptions[k])).arg(ColourSteps.Highest),
                          ColourSteps, 0, [this](int /*value*/) { TakeBars(); });
        auto *value = new QLabel("0", this);
        value->setObjectName(IndexedName("lblColor", row));
        value->setMinimumWidth(value->fontMetrics().horizontalAdvance("000"));
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        connect(bars[k], &QScrollBar::valueChanged, value,
                [value, bar = bars[k]] { value->setText(QString::number(bar->value())); });
        grid->addWidget(new QLabel(Text(BarCaptions[k]), this), row, 0);
        grid->addWidget(bars[k], row, 1);
        grid->addWidget(value, row, 2);
    }
    grid->setColumnStretch(1, 1);
    return grid;
}

void ColoursPanel::ShowColour()
{
    const QScopedValueRollback showing(ShowingValues, true);
    const QColor colour = ToolkitColour(ColourTable[ColourIndex]);
    bars[0]->setValue(colour.red());
    bars[1]->setValue(colour.green());
    bars[2]->setValue(colour.blue());
    ShowTextures();
    ShowSwatches();
}

void ColoursPanel::ShowSwatches()
{
    for (ColourSwatch *swatch : swatches) {
        swatch->TellColour();
    }
    update();
}

// Only cells and lines have a texture.
void ColoursPanel::ShowTextures()
{
    const std::int32_t *texture = TextureOf(ColourIndex);
    for (std::size_t k = 0; k < tiles.size(); ++k) {
        tiles[k]->setEnabled(texture != nullptr);
        tiles[k]->ShowInForce(texture != nullptr && *texture == static_cast<std::int32_t>(k));
        tiles[k]->setToolTip(texture != nullptr ? "Gives the chosen color this texture"
                                                : "The chosen color takes no texture");
    }
}

void ColoursPanel::TakeBars()
{
    const QRgb colour = qRgb(bars[0]->value(), bars[1]->value(), bars[2]->value());
    SetColour(ColourIndex, ColourOf(colour));
    ShowSwatches();
}

void ColoursPanel::TakeColour(Colour colour)
{
    if (ChangesCount()) {
        SetColour(ColourIndex, colour);
        ShowColour();
    }
}

void ColoursPanel::TakeTexture(int tile)
{
    if (ChangesCount()) {
        SetTexture(ColourIndex, tile);
        ShowTextures();
        update();
    }
}

QPointer<ColoursPanel> coloursPanel;

} // namespace

QWidget *MakeColoursTab(QWidget *parent)
{
    coloursPanel = new ColoursPanel(parent);
    return coloursPanel;
}

void SetColorScrollbars()
{
    if (coloursPanel != nullptr) {
        coloursPanel->ShowColour();
    }
}

} // namespace kelvarine
