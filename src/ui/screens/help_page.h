// The two forms of the pictures of the help.
#pragma once

#include <QString>

namespace kelvarine {

inline constexpr int HelpPictureRatio = 2;  // pictures hold so many pixels for each logical one
inline constexpr int HelpPictureSide = 567; // width and height at their usual size, logical pixels

// Name of a picture's form for dark windows, by the name of the one for light windows.
inline QString DarkFormOf(QString picture)
{
    return picture.replace(QStringLiteral(".png"), QStringLiteral("-dark.png"));
}

} // namespace kelvarine
