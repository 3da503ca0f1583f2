// The addresses by which desktops name files to each other, such as
// "file:///home/anna/one%20game.sdk". Each byte of a name is told by itself, so that a name which
// is no text in any alphabet comes through.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

inline constexpr std::string_view FileScheme = "file://";

// The path that an address names, byte for byte. Empty when it is no address of a file, or of one
// on another machine than this.
std::string PathOfAddress(std::string_view address, std::string_view thisMachine);

// The address of a file, given by its full path.
std::string AddressOf(std::string_view path);

// The one address in a list of them, a line each, as it comes with what is dropped. Empty when
// there are none or several.
std::string_view OneAddressIn(std::string_view list);

} // namespace kelvarine
