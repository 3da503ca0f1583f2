#include "files/text_case.h"

#include <array>
#include <climits>
#include <clocale>
#include <cwchar>
#include <cwctype>

namespace kelvarine {

namespace {

// The rules of letters for the time of a block: the same for every player's language.
class LettersOfAllScripts {
public:
    LettersOfAllScripts()
    {
        static const locale_t letters = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        before_ = ::uselocale(letters);
    }
    LettersOfAllScripts(const LettersOfAllScripts &) = delete;
    LettersOfAllScripts &operator=(const LettersOfAllScripts &) = delete;
    ~LettersOfAllScripts()
    {
        ::uselocale(before_);
    }

private:
    locale_t before_;
};

} // namespace

std::string_view WithoutOuterBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LowerCase(std::string_view text)
{
    const LettersOfAllScripts inForce;
    std::string lower;
    while (!text.empty()) {
        std::mbstate_t state{};
        wchar_t letter = 0;
        const std::size_t length = std::mbrtowc(&letter, text.data(), text.size(), &state);
        if (length == 0 || length > text.size()) { // a zero byte, or no letter at all
            lower += text.front();
            text.remove_prefix(1);
            continue;
        }
        std::array<char, MB_LEN_MAX> bytes{};
        const auto small = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(letter)));
        lower.append(bytes.data(), std::wcrtomb(bytes.data(), small, &state));
        text.remove_prefix(length);
    }
    return lower;
}

} // namespace kelvarine
