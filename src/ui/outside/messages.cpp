// Messages and questions, in boxes beside the board.
#include "outside/messages.h"

#include "paint/text.h"
#include "ui/window/board_widget.h"
#include "ui/window/box_place.h"
#include "ui/window/front.h"
#include "ui/window/main_window.h"

#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>
#include <optional>

namespace kelvarine {

namespace {

constexpr int RoomInLine = 16;     // beside the text, pixels
constexpr int RoomAroundLine = 60; // for the rest of the box and its frame

// Boxes break lines as the toolkit does.
QString BoxText(std::string_view text)
{
    return Text(text).replace(u'\r', u'\n');
}

// Size of a box with its frame, as it will be on view.
QSize SizeOnView(QMessageBox &box)
{
    // A box works out its size when it is shown, and it has to stand in its place before that.
    box.setAttribute(Qt::WA_DontShowOnScreen);
    box.show();
    const QSize inner = box.size();
    box.hide();
    box.setAttribute(Qt::WA_DontShowOnScreen, false);
    return inner + (Window()->frameSize() - Window()->size());
}

// Beside the whole window, so that the coordinates stay in view as well, or else beside the board.
void MoveBesideBoard(QMessageBox &box)
{
    const QWidget &board = *Window()->Client->Board;
    const QRect cells(board.mapToGlobal(QPoint(0, 0)), board.size());
    const QRect screen = Window()->screen()->availableGeometry();
    const QSize size = SizeOnView(box);
    for (const QRect &area : {Window()->frameGeometry(), cells}) {
        if (const std::optional<QPoint> corner = BoxBeside(area, size, screen)) {
            box.move(*corner);
            return;
        }
    }
}

// The toolkit indents the text of a box as if there were an icon.
void TakeIndentAway(const QMessageBox &box)
{
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    for (int place = 0; place < grid->count(); ++place) {
        if (grid->itemAt(place)->spacerItem() != nullptr) {
            delete grid->takeAt(place);
            break;
        }
    }
    grid->setHorizontalSpacing(0);
    grid->setColumnStretch(1, 1); // what the buttons need more is the text's
}

// The toolkit breaks a long text into lines of half a screen at most. Where the box is then higher
// than the screen, as on a low one in large letters, its lines become longer.
void WidenForHeight(QMessageBox &box)
{
    constexpr int step = 50; // pixels
    auto *label = box.findChild<QLabel *>("qt_msgbox_label");
    const QSize room = box.screen()->availableSize();
    int width = 0;
    while (SizeOnView(box).height() > room.height()) {
        width = std::max(width, label->width()) + step;
        if (width + RoomAroundLine > room.width()) {
            return;
        }
        label->setMinimumWidth(width);
    }
}

// A line of this many characters is read without scrolling; so long is a whole game.
constexpr int CharactersInView = 81;

// Gives the box for a text its width, as far as the screen has it.
void WidenForText(QInputDialog &box)
{
    auto *line = box.findChild<QLineEdit *>();
    const int wanted = line->fontMetrics().horizontalAdvance(QString(CharactersInView, u'0'));
    const int room = Window()->screen()->availableGeometry().width();
    line->setMinimumWidth(std::min(wanted + RoomInLine, room - RoomAroundLine));
}

QMessageBox::StandardButton RunBox(QMessageBox::Icon icon, const QString &text,
                                   std::string_view title, QMessageBox::StandardButtons buttons,
                                   QMessageBox::StandardButton defaultButton)
{
    QWidget *asker = AskingWindow();
    QMessageBox box(icon, BoxText(title.empty() ? ProgramName : title), text, buttons, asker);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(defaultButton);
    if (icon == QMessageBox::NoIcon) {
        TakeIndentAway(box);
    }
    WidenForHeight(box);
    if (asker == Window()) {
        MoveBesideBoard(box);
    }
    return static_cast<QMessageBox::StandardButton>(RunDialog(box));
}

} // namespace

void ShowMessage(std::string_view text, std::string_view title)
{
    RunBox(QMessageBox::NoIcon, BoxText(text), title, QMessageBox::Ok, QMessageBox::Ok);
}

bool AskYesNo(std::string_view text, std::string_view title)
{
    // Questions are worded for boxes that show a doubled "&" as one.
    const QString shown = BoxText(text).replace(Text("&&"), Text("&"));
    return RunBox(QMessageBox::Question, shown, title, QMessageBox::Yes | QMessageBox::No,
                  QMessageBox::No) == QMessageBox::Yes;
}

Answer AskYesNoCancel(std::string_view text)
{
    switch (RunBox(QMessageBox::Question, BoxText(text), ProgramName,
                   QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

std::string AskText(std::string_view prompt)
{
    QInputDialog box(AskingWindow());
    box.setWindowTitle(BoxText(ProgramName));
    box.setInputMode(QInputDialog::TextInput);
    box.setLabelText(BoxText(prompt));
    WidenForText(box);
    return RunDialog(box) == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

} // namespace kelvarine
