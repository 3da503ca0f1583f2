#include "support/widget_file_dialog.h"

namespace kelvarine::testing {

std::string PressInBox(const std::function<void()> &action, Qt::Key key)
{
    std::string text;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            box != nullptr && box->isVisible()) {
            text = box->text().toStdString();
            QTest::keyClick(box, key);
        }
    });
    watch.start(1);
    action();
    return text;
}

} // namespace kelvarine::testing
