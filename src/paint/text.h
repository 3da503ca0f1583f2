// Texts of the engine as the toolkit takes them.
#pragma once

#include <QString>

#include <string_view>

namespace kelvarine {

inline QString Text(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace kelvarine
