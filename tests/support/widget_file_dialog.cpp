#include "support/widget_file_dialog.h"

#include "support/widget_modal.h"

namespace kelvarine::testing {

std::string PressInBox(const std::function<void()> &action, Qt::Key key)
{
    std::string text;
    WhileModal<QMessageBox>(action, [&](QMessageBox &box) {
        text = box.text().toStdString();
        QTest::keyClick(&box, key);
    });
    return text;
}

} // namespace kelvarine::testing
