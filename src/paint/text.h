// Texts as the toolkit takes them. They are fixed English and come from here alone: a literal is
// handed over as it stands, and Text makes the toolkit's text of any other one, or of a literal
// that is put together with others.
#pragma once

#include <QString>

#include <string_view>

namespace kelvarine {

inline QString Text(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace kelvarine
