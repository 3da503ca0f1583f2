// A window that prints, for every key, the code and the modifier sum that the board would get.
#include "ui/window/key_decoder.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <cstdio>

namespace {

class Probe : public QWidget {
protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        std::printf("%d %d\n", kelvarine::KeyCodeOf(*event),
                    kelvarine::ModifiersOf(event->modifiers()));
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Probe probe;
    probe.setWindowTitle(QStringLiteral("Key probe"));
    probe.resize(300, 200);
    probe.show();
    return QApplication::exec();
}
