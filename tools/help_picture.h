// The pictures of the help: a position as it is drawn to be read, not to be played on. Numbers and
// pencilmarks that a conclusion rests on are strong and all others pale, what falls is struck
// through, and a chain carries its numbers at its joints. Where a position only looks like a
// technique, the number that spoils it is ringed.
#pragma once

#include "help_example.h"
#include "ui/screens/help_page.h"

#include <QColor>
#include <QImage>

#include <cstdint>

namespace kelvarine {

// The colours of one form of the pictures.
struct PictureLook {
    QColor Paper;    // behind the board and in cells that have no part in the hint
    QColor Given;    // cells with a given number
    QColor House;    // cells of the houses that the hint speaks of
    QColor Pattern;  // cells that are its reason
    QColor Second;   // every other cell of a chain, the wings of a hinge
    QColor Target;   // the cell that the hint is about
    QColor Spoiler;  // the cell that keeps a position from being what it looks like
    QColor Ink;      // numbers, and pencilmarks that count
    QColor PaleInk;  // pencilmarks that do not
    QColor Lines;    // the lines of the grid
    QColor Strike;   // what strikes a pencilmark through, and a number that can be placed
    QColor Chain;    // lines and joints of a chain
    QColor JointInk; // the number on a joint
};

extern const PictureLook LightPicture;
extern const PictureLook DarkPicture;

inline constexpr int PictureCellSide = 58; // logical pixels
inline constexpr int PictureMarkSize = 21; // of the font of pencilmarks: digits of 14 pixels

// Left edge of the cells of a column, which is also the upper edge of those of a row, 1..9.
constexpr int PicturePlace(int line)
{
    return 29 + (line - 1) * (PictureCellSide + 1) + (line - 1) / 3 * 2;
}

inline constexpr int PictureSide = PicturePlace(9) + PictureCellSide + 4;
static_assert(PictureSide == HelpPictureSide);

// What a picture shows: the hint of a technique, or, under a supposition, what only looks like it.
struct PictureSubject {
    std::int32_t Technique;
    Supposition Supposed = NothingSupposed;
};

// Paints Grid with the marks, the words and the chain that a whole hint has left. Under a
// supposition Grid is as supposed, and the picture shows it as it is, with nothing struck through.
QImage HelpPicture(const PictureLook &look, const PictureSubject &subject);

} // namespace kelvarine
