#include "ui/window/program_icon.h"

#include "paint/text.h"

#include <array>

// The pictures lie in a static library, which the linker takes in only when it is asked to. The
// toolkit wants this said outside of any namespace of ours.
static void LoadPictures()
{
    Q_INIT_RESOURCE(kelvarine);
}

namespace kelvarine {

QIcon ProgramIcon()
{
    LoadPictures();
    QIcon icon;
    for (const int size : std::array{16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        icon.addFile(Text(":/icons/%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

} // namespace kelvarine
