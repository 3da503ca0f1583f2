#include "configure/box_number.h"

#include <algorithm>

namespace kelvarine {

std::int32_t NumberIn(std::string_view text)
{
    constexpr std::size_t mostDigits = 9; // whatever they are, 32 bits hold them
    std::int32_t number = 0;
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    for (const char mark : text.substr(0, mostDigits)) {
        if (mark < '0' || mark > '9') {
            break;
        }
        number = 10 * number + (mark - '0');
    }
    return number;
}

} // namespace kelvarine
