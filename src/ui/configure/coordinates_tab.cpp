#include "ui/configure/coordinates_tab.h"

#include "configure/naming_settings.h"
#include "grid/names.h"
#include "paint/sharp_lines.h"
#include "paint/text.h"
#include "ui/controls/configure_controls.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace kelvarine {

namespace {

// The table of names, in pixels.
constexpr int CellAcross = 41;
constexpr int CellDown = 36;
constexpr int TableWidth = 9 * CellAcross;
constexpr int TableHeight = 9 * CellDown;
constexpr int LargestLetters = 15; // pixels; smaller when the names are long

QString NameOf(int column, int row)
{
    return Text(CellName(column, row));
}

class NameSample : public QWidget {
public:
    explicit NameSample(QWidget *parent) : QWidget(parent)
    {
        setObjectName("picCoordinateSample");
        setAccessibleName("Names of the cells");
        setFixedSize(TableWidth + 2, TableHeight + 2);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(0, 0, TableWidth + 2, TableHeight + 2, Qt::white);
        DrawLines(painter);
        painter.setPen(Qt::black);
        painter.setFont(FittingFont());
        for (int column = 1; column <= 9; ++column) {
            for (int row = 1; row <= 9; ++row) {
                const QRect place((column - 1) * CellAcross + 1, (row - 1) * CellDown + 1,
                                  CellAcross, CellDown);
                painter.drawText(place, Qt::AlignCenter, NameOf(column, row));
            }
        }
    }

private:
    // Box borders are doubled by a second line.
    void DrawLines(QPainter &painter) const
    {
        for (int line = 0; line <= 9; ++line) {
            const int thickness = line % 3 == 0 ? 2 : 1;
            DrawLineDown(painter, rect(), line * CellAcross, thickness, Qt::black);
            DrawLineAcross(painter, rect(), line * CellDown, thickness, Qt::black);
        }
    }

    [[nodiscard]] QFont FittingFont() const
    {
        QFont letters = font();
        letters.setPixelSize(LargestLetters);
        // Letters differ in width, and the last names are made of other ones than the first.
        const QFontMetrics metrics(letters);
        int widest = 1;
        for (int line = 1; line <= 9; ++line) {
            widest = std::max(widest, metrics.horizontalAdvance(NameOf(line, line)));
        }
        constexpr int room = CellAcross - 4;
        if (widest > room) {
            letters.setPixelSize(std::max(1, LargestLetters * room / widest));
        }
        return letters;
    }
};

} // namespace

QWidget *MakeCoordinatesTab(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *rows = new QVBoxLayout(panel);
    auto *frames = new QHBoxLayout;
    rows->setSpacing(PanelGap);
    frames->setSpacing(PanelGap);
    auto *sample = new NameSample(panel);
    const auto add = [&](std::string_view name, std::string_view frame,
                         std::span<const std::string_view> captions, std::int32_t current,
                         void (*set)(std::int32_t)) {
        QGroupBox *box =
            MakeOptions(panel, name, frame, captions, current, [sample, set](std::int32_t index) {
                set(index);
                sample->update();
            });
        box->setObjectName("frame" + Text(frame));
        frames->addWidget(box, 1);
    };
    add("optColumnFormat", "Column", ColumnCaptions, ColumnFormat, SetColumnFormat);
    add("optRowFormat", "Row", RowCaptions, RowFormat, SetRowFormat);
    add("optCoordSeparator", "Separator", SeparatorCaptions, CoordSeparator, SetCoordSeparator);
    add("optCoordBrackets", "Brackets", BracketCaptions, CoordBrackets, SetCoordBrackets);
    rows->addLayout(frames);
    rows->addWidget(MakeButton(panel, "cmdCoordFirst", "Switch Order",
                               [sample] {
                                   SwitchCoordOrder();
                                   sample->update();
                               }),
                    0, Qt::AlignHCenter);
    rows->addWidget(sample, 0, Qt::AlignHCenter);
    rows->addStretch();
    return panel;
}

} // namespace kelvarine
