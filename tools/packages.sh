# The Debian packages that the scripts need, by what for.

BUILD_PACKAGES=(
    g++ cmake ninja-build
    qt6-base-dev qt6-multimedia-dev libgl1-mesa-dev
    qt6-tools-dev qt6-documentation-tools
)
# The help is a database that the toolkit opens through a driver of its own package.
PLAY_PACKAGES=(fonts-liberation libqt6sql6-sqlite)
# A virtual display with real keys and a picture of it, for machines without a screen.
SCREEN_PACKAGES=(xvfb xdotool openbox imagemagick)
TEST_PACKAGES=(
    libgtest-dev librapidcheck-dev libbenchmark-dev
    poppler-utils
    python3 python3-pil python3-xlib xclip x11-xkb-utils x11-xserver-utils
    strace weston qt6-wayland libsm-dev
    python3-pyatspi at-spi2-core dbus-daemon
)
# What is needed beyond the tests by those who change the program.
CHECK_PACKAGES=(clang-format clang-tidy)
# What looks at the package as the desktop and Debian do.
DESKTOP_PACKAGES=(
    desktop-file-utils appstream shared-mime-info libxml2-utils
    dpkg-dev lintian man-db libglib2.0-bin file
)
