#include "generator/game_number.h"

#include "generator/random_source.h"
#include "grid/digits.h"
#include "grid/rounding.h"
#include "outside/messages.h"

#include <algorithm>
#include <string>

namespace kelvarine {

std::int32_t GameNumber;

namespace {

std::string WithThousands(std::int32_t number)
{
    std::string digits = std::to_string(number);
    for (std::size_t place = digits.size(); place > 3;) {
        place -= 3;
        digits.insert(place, ",");
    }
    return digits;
}

// Asks until the player gives up or names a number in range.
bool AskForGameNumber()
{
    const std::string request =
        "Please select a game number between 1 and " + WithThousands(LargestGameNumber) + "\r";
    std::string prompt = request;
    while (true) {
        const double number = TypedNumber(AskText(prompt));
        if (number == 0) {
            return false;
        }
        if (number >= 1 && number <= LargestGameNumber) {
            GameNumber = static_cast<std::int32_t>(number);
            return true;
        }
        prompt = "Your game number is out of limits.\r\r" + request;
    }
}

} // namespace

double TypedNumber(std::string_view text)
{
    std::size_t place = std::min(text.find_first_not_of(' '), text.size());
    const bool negative = place < text.size() && text[place] == '-';
    if (place < text.size() && (text[place] == '-' || text[place] == '+')) {
        ++place;
    }
    double number = 0;
    for (; place < text.size() && IsDigit(text[place]); ++place) {
        number = number * 10 + (text[place] - '0');
    }
    if (place < text.size() && text[place] == '.') {
        double weight = 0.1;
        for (++place; place < text.size() && IsDigit(text[place]); ++place) {
            number += weight * (text[place] - '0');
            weight /= 10;
        }
    }
    return RoundHalfEven(negative ? -number : number);
}

bool SelectGameNumber(std::string_view mode)
{
    if (mode == RandomGame) {
        do {
            GameNumber = genrand_int31();
        } while (GameNumber < 1);
    } else if ((mode == UserSelected || GameNumber == 0) && !AskForGameNumber()) {
        return false;
    }
    init_genrand(static_cast<std::uint32_t>(GameNumber));
    return true;
}

} // namespace kelvarine
