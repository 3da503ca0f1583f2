#include "configure/merged_settings.h"

#include "configure/configuration.h"
#include "configure/setting_table.h"
#include "grid/little_endian.h"

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

// Elements of a record that go together.
struct Span {
    std::size_t Record;
    std::size_t First;
    std::size_t Last;
};

constexpr std::array Wholes{
    Span{5, 0, 4},                                // the main window
    Span{6, 1, 4}, Span{6, 6, 9},                 // the screens beside it
    Span{7, 1, 4}, Span{7, 6, 7}, Span{10, 0, 4}, // a technique stands in one level
};

Span SpanOf(const SettingRow &row)
{
    const auto *const whole = std::ranges::find_if(Wholes, [&row](const Span &span) {
        return span.Record == row.Record && span.First <= row.Element && row.Element <= span.Last;
    });
    return whole != Wholes.end() ? *whole : Span{row.Record, row.Element, row.Element};
}

bool IsWholeFile(std::string_view bytes)
{
    return bytes.size() >= ConfigurationSize &&
           NumberAt<std::uint32_t>(bytes, 0) == ConfigurationVersion;
}

} // namespace

std::string MergedSettings(std::string_view common, std::string_view now, std::string_view standing)
{
    std::string merged(now);
    if (!IsWholeFile(standing)) {
        return merged;
    }
    for (const SettingRow &row : SettingTable) {
        const Span span = SpanOf(row);
        const std::size_t place = (span.Record - 1) * BytesInRecord + 4 * span.First;
        const std::size_t length = 4 * (span.Last - span.First + 1);
        if (now.substr(place, length) == common.substr(place, length)) {
            merged.replace(place, length, standing.substr(place, length));
        }
    }
    return merged;
}

} // namespace kelvarine
