// The print tab of the configuration screen: what is printed, where and how large, and a preview
// of the page.
#pragma once

class QWidget;

namespace kelvarine {

// Makes the panel picTabPrint, filled from the settings, of which each control writes its own at
// once. The printer is asked for its printable area when the panel comes into view.
QWidget *MakePrintTab(QWidget *parent);

// Brings the measures and the preview up to date where a panel is in view. Called whenever the
// board is painted.
void RefreshPrintPreview();

} // namespace kelvarine
