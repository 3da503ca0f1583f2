"""A dark desktop: its colours, in the file that one of the desktops keeps them in."""

DARK = {
    "Window": ("32,35,38", "239,240,241"),
    "View": ("27,30,32", "239,240,241"),
    "Button": ("49,54,59", "239,240,241"),
    "Selection": ("61,174,233", "252,252,252"),
    "Tooltip": ("49,54,59", "239,240,241"),
}


def make_dark(desktop):
    """Makes a desktop dark for the programs that start from now on."""
    desktop.environment.update(XDG_CURRENT_DESKTOP="KDE", KDE_SESSION_VERSION="5")
    groups = [f"[Colors:{name}]\nBackgroundNormal={back}\nForegroundNormal={text}\n"
              "ForegroundInactive=161,169,177\nForegroundLink=29,153,243\n"
              for name, (back, text) in DARK.items()]
    (desktop.home / ".config").mkdir(exist_ok=True)
    (desktop.home / ".config/kdeglobals").write_text("\n".join(groups) + "\n[KDE]\nwidgetStyle=Fusion\n")
