#include "files/file_address.h"
#include "program/defaults.h"
#include "ui/window/dark_outlines.h"
#include "ui/window/lost_display.h"
#include "ui/window/program.h"
#include "ui/window/program_icon.h"

#include <QApplication>
#include <QSysInfo>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

// The full path of the file that the program is to open, in the very bytes of its name; empty when
// none is given. It may be given as an address.
std::string GivenFile(int argc, char **argv)
{
    if (argc < 2 || argv[1][0] == '\0') {
        return {};
    }
    const std::string machine = QSysInfo::machineHostName().toStdString();
    if (std::string path = kelvarine::PathOfAddress(argv[1], machine); !path.empty()) {
        return path;
    }
    std::error_code failure;
    const std::filesystem::path path = std::filesystem::absolute(argv[1], failure);
    return failure ? argv[1] : path.string();
}

// The program has no options, and what looks like one is not for the toolkit either.
bool AsksForAnOption(int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char *word) { return *word == '-'; });
}

} // namespace

int main(int argc, char **argv)
{
    if (AsksForAnOption(argc, argv)) {
        std::cerr << "kelvarine: there are no options. Start it as: kelvarine [file]\n";
        return 2;
    }
    const QApplication application(argc, argv);
    QApplication::setApplicationName("kelvarine");
    // In these letters the version is looked for in the finished program.
    QApplication::setApplicationVersion(QStringLiteral(KELVARINE_VERSION));
    QApplication::setDesktopFileName("kelvarine");
    QApplication::setWindowIcon(kelvarine::ProgramIcon());
    kelvarine::LightenDarkOutlines();
    kelvarine::SetDefaults();
    kelvarine::EndAtOnceOnExit(true);
    const int result = kelvarine::RunProgram(GivenFile(argc, argv));
    kelvarine::EndAtOnceOnExit(false);
    // Everything is kept by now. On its way off Wayland the toolkit now and then waits for ever for
    // a thread of its own, and the player would be left with a program that nobody sees.
    if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
        std::_Exit(result);
    }
    return result;
}
