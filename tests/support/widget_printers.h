// Printers for the tests: the toolkit's calls to the printing system end here, so that a machine
// has those printers that a test gives it, and no others.
#pragma once

#include <string>
#include <vector>

namespace kelvarine::testing {

struct PrinterDouble {
    std::string Name;
    int Margin = 0; // points that it cannot print on, on each side of a letter
};

// The machine has these printers, the first of them its usual one, as long as this lives. The
// program's own choice of a printer and of its page is put back at the end.
class PrintersInstalled {
public:
    explicit PrintersInstalled(std::vector<PrinterDouble> printers);
    PrintersInstalled(const PrintersInstalled &) = delete;
    PrintersInstalled &operator=(const PrintersInstalled &) = delete;
    ~PrintersInstalled();
};

// Chooses a printer by its name in the print dialog that an action opens, and accepts the dialog.
bool ChooseInDialog(const std::string &name);

} // namespace kelvarine::testing
