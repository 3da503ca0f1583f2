// Palettes of high contrast: they reach every window, and what stands in them can be read.
#include "support/widget_program.h"
#include "support/widget_screens.h"
#include "ui/configure/tab_strip.h"
#include "ui/controls/colour_swatches.h"
#include "ui/window/toolbar_widget.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextBrowser>
#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace kelvarine::testing {
namespace {

struct Contrast {
    const char *Name;
    QColor Ground;
    QColor Ink;
    QColor Disabled;
};

// As the desktops of Debian have them.
const std::array Contrasts{
    Contrast{"Black", QColor(0, 0, 0), QColor(255, 255, 255), QColor(0, 255, 0)},
    Contrast{"YellowOnBlack", QColor(0, 0, 0), QColor(255, 255, 0), QColor(0, 255, 255)},
    Contrast{"White", QColor(255, 255, 255), QColor(0, 0, 0), QColor(96, 0, 0)}};

QPalette PaletteOf(const Contrast &contrast)
{
    QPalette palette(contrast.Ink, contrast.Ground, contrast.Ink, contrast.Ink, contrast.Ink,
                     contrast.Ink, contrast.Ink, contrast.Ground, contrast.Ground);
    palette.setColor(QPalette::AlternateBase, contrast.Ground);
    palette.setColor(QPalette::ToolTipBase, contrast.Ground);
    palette.setColor(QPalette::ToolTipText, contrast.Ink);
    palette.setColor(QPalette::Light, contrast.Ground);
    palette.setColor(QPalette::Highlight, contrast.Ink);
    palette.setColor(QPalette::HighlightedText, contrast.Ground);
    palette.setColor(QPalette::Link, contrast.Ink);
    palette.setColor(QPalette::LinkVisited, contrast.Ink);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        palette.setColor(QPalette::Disabled, role, contrast.Disabled);
    }
    return palette;
}

// Relative luminance of a colour and the ratio of two, as the W3C's guidelines on accessible
// content define them.
double Luminance(QRgb colour)
{
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) +
           0.0722 * part(qBlue(colour));
}

double Ratio(QRgb a, QRgb b)
{
    const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

// What a part of a picture is painted on, and how far its ink stands out from that at best.
struct Reading {
    QRgb Ground = 0;
    double Best = 1;
};

Reading Read(const QImage &picture)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y) | 0xFF000000];
        }
    }
    Reading reading;
    reading.Ground =
        std::ranges::max_element(counts, {}, [](const auto &one) { return one.second; })->first;
    for (const auto &[colour, count] : counts) {
        reading.Best = std::max(reading.Best, Ratio(colour, reading.Ground));
    }
    return reading;
}

// Whether a control shows words on the colours of the desktop.
bool ShowsWords(const QWidget &control)
{
    // The toolbar has the colours of what its buttons do, as the swatches have.
    if (qobject_cast<const ToolButtonWidget *>(&control) != nullptr ||
        qobject_cast<const PressButton *>(&control) != nullptr) {
        return false;
    }
    if (const auto *label = qobject_cast<const QLabel *>(&control)) {
        return !label->text().trimmed().isEmpty();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&control)) {
        return !button->text().trimmed().isEmpty();
    }
    if (const auto *line = qobject_cast<const QLineEdit *>(&control)) {
        return !line->text().isEmpty();
    }
    if (const auto *list = qobject_cast<const QComboBox *>(&control)) {
        return !list->currentText().isEmpty();
    }
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(&control)) {
        return !text->toPlainText().isEmpty();
    }
    return qobject_cast<const QGroupBox *>(&control) != nullptr ||
           qobject_cast<const TabStrip *>(&control) != nullptr ||
           qobject_cast<const QMenuBar *>(&control) != nullptr ||
           qobject_cast<const QTextBrowser *>(&control) != nullptr;
}

class HighContrast : public ::testing::TestWithParam<std::size_t> {
protected:
    ~HighContrast() override
    {
        program.reset();
        QApplication::setPalette(former);
    }

    [[nodiscard]] static const Contrast &Wanted()
    {
        return Contrasts[GetParam()];
    }

    void Start()
    {
        program = std::make_unique<Program>();
    }

    // Tells how many controls were read.
    static int ExpectReadable(QWidget &window)
    {
        const QImage picture = window.grab().toImage();
        int read = 0;
        for (const QWidget *control : window.findChildren<QWidget *>()) {
            if (control->window() != &window || !control->isVisible() || !ShowsWords(*control)) {
                continue;
            }
            const QRect place(control->mapTo(&window, QPoint(0, 0)), control->size());
            const QRect seen = place.intersected(
                control->visibleRegion().boundingRect().translated(place.topLeft()));
            if (seen.height() < control->fontMetrics().height()) {
                continue; // scrolled out of the window
            }
            const Reading reading = Read(picture.copy(seen));
            const std::string name = std::string(control->metaObject()->className()) + " " +
                                     control->objectName().toStdString() + " \"" +
                                     control->accessibleName().toStdString() + "\"";
            EXPECT_GE(reading.Best, 7) << name;
            if (qobject_cast<const QLabel *>(control) != nullptr) {
                EXPECT_LT(Ratio(reading.Ground, Wanted().Ground.rgb()), 1.1) << name;
            }
            ++read;
        }
        return read;
    }

    const QPalette former = QApplication::palette();
    std::unique_ptr<Program> program;
};

TEST_P(HighContrast, OfTheStartReachesEveryWindow)
{
    QApplication::setPalette(PaletteOf(Wanted()));
    Start();
    int read = 0;
    LookAtEveryWindow(*program->Main, [&](QWidget &window) { read += ExpectReadable(window); });
    EXPECT_GT(read, 200);
}

TEST_P(HighContrast, ThatComesLaterReachesEveryWindowThatIsOpen)
{
    Start();
    int read = 0;
    LookAtEveryWindow(*program->Main, [&](QWidget &window) {
        QApplication::setPalette(PaletteOf(Wanted()));
        QCoreApplication::processEvents();
        read += ExpectReadable(window);
        QApplication::setPalette(former);
        QCoreApplication::processEvents();
    });
    EXPECT_GT(read, 200);
}

INSTANTIATE_TEST_SUITE_P(Palettes, HighContrast, ::testing::Range<std::size_t>(0, Contrasts.size()),
                         [](const auto &chosen) { return Contrasts[chosen.param].Name; });

} // namespace
} // namespace kelvarine::testing
