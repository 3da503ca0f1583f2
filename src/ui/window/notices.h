// Words that are said to assistive tools and belong to no control: notifications in the main
// window, of which the latest stay to be read again.
#pragma once

#include <QString>

namespace kelvarine {

// Makes the toolkit describe the client area as one that holds notifications. Further calls do
// nothing.
void DescribeNoticesToTools();

// Says words, in the way that screen readers speak. Nothing for an empty text, without a window or
// while nobody listens.
void Tell(const QString &words);

} // namespace kelvarine
