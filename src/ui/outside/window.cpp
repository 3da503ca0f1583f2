// The main window, as the engine asks for it.
#include "outside/window.h"

#include "outside/board.h"
#include "paint/board_painter.h"
#include "paint/text.h"
#include "ui/configure/print_tab.h"
#include "ui/window/board_widget.h"
#include "ui/window/front.h"
#include "ui/window/main_window.h"
#include "ui/window/teller.h"
#include "ui/window/toolbar_widget.h"

namespace kelvarine {

void ShowMainWindow()
{
    Window()->ShowAtItsPlace();
}

void ActivateMainWindow()
{
    ActivateMainWindowLast();
}

void CloseMainWindow()
{
    Window()->CloseUnlessAsking();
}

void KeepMainPlace()
{
    Window()->KeepPlace();
}

void SetWindowTitle(std::string_view title)
{
    Window()->setWindowTitle(Text(title));
}

void UpdateCaptions()
{
    Window()->UpdateMenuCaptions();
    TellChanges();
}

void RefreshWindow()
{
    Window()->Client->update();
}

void UpdateToolbar()
{
    Window()->Client->Toolbar->Update();
    TellChanges();
}

void FocusBoard()
{
    Window()->Client->Board->setFocus();
}

void ResizeWindow()
{
    Window()->Client->Layout();
    DrawBoard();
    RefreshWindow();
}

void ShowBoardPicture()
{
    Window()->Client->Board->update();
    TellChanges();
    RefreshPrintPreview();
}

} // namespace kelvarine
