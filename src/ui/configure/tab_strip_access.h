// The tab strip as assistive tools see it: a list of eight tabs, each with its name, its place and
// an action that chooses it.
#pragma once

namespace kelvarine {

// Makes the strip known to assistive tools; further calls do nothing.
void InstallTabStripAccess();

} // namespace kelvarine
