#include "files/file_address.h"

#include "files/text_case.h"
#include "grid/digits.h"

#include <algorithm>
#include <charconv>

namespace kelvarine {

namespace {

constexpr std::string_view LineEnds("\r\n\0", 3); // some end the list as texts end in memory
constexpr std::string_view PlainSigns = "/-._~";  // beside letters and digits
constexpr std::string_view Digits = "0123456789ABCDEF";

bool StandsForItself(char byte)
{
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || IsDigit(byte) ||
           PlainSigns.find(byte) != std::string_view::npos;
}

std::string Decoded(std::string_view text)
{
    std::string bytes;
    while (!text.empty()) {
        unsigned char byte = 0;
        const std::string_view digits = text.substr(1, 2);
        const bool isCode =
            text.front() == '%' && digits.size() == 2 &&
            std::from_chars(digits.data(), digits.data() + 2, byte, 16).ptr == digits.data() + 2;
        bytes += isCode ? static_cast<char>(byte) : text.front();
        text.remove_prefix(isCode ? 3 : 1);
    }
    return bytes;
}

} // namespace

std::string PathOfAddress(std::string_view address, std::string_view thisMachine)
{
    const std::string_view scheme = FileScheme.substr(0, FileScheme.find('/'));
    if (LowerCase(address.substr(0, scheme.size())) != scheme) {
        return {};
    }
    address.remove_prefix(scheme.size());
    if (!address.starts_with('/')) {
        return {}; // a file beside another one, which none is told of
    }
    if (address.starts_with("//")) {
        address.remove_prefix(2);
    }
    const std::size_t slash = std::min(address.find('/'), address.size());
    const std::string_view machine = address.substr(0, slash);
    const bool isHere = machine.empty() || machine == "localhost" || machine == thisMachine;
    std::string path = isHere ? Decoded(address.substr(slash)) : std::string();
    return path.find('\0') == std::string::npos ? path : std::string(); // no path holds that one
}

std::string AddressOf(std::string_view path)
{
    std::string address(FileScheme);
    for (const char byte : path) {
        if (StandsForItself(byte)) {
            address += byte;
        } else {
            const auto value = static_cast<unsigned char>(byte);
            address += {'%', Digits[value / 16], Digits[value % 16]};
        }
    }
    return address;
}

std::string_view OneAddressIn(std::string_view list)
{
    std::string_view found;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find_first_of(LineEnds), list.size());
        const std::string_view line = list.substr(0, end);
        list.remove_prefix(std::min(end + 1, list.size()));
        if (line.empty() || line.front() == '#') {
            continue; // the end of a line, or a comment
        }
        if (!found.empty()) {
            return {};
        }
        found = line;
    }
    return found;
}

} // namespace kelvarine
