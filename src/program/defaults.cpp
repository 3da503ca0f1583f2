#include "program/defaults.h"

#include "board/geometry.h"
#include "board/look.h"
#include "board/margin.h"
#include "commands/print_run.h"
#include "configure/configuration.h"
#include "files/file_dialog.h"
#include "files/recovery.h"
#include "game/clock.h"
#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "generator/game_number.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/mouse.h"
#include "input/told.h"
#include "input/toolbar.h"
#include "logic/driver.h"
#include "logic/technique_table.h"
#include "print/page_layout.h"
#include "print/print_settings.h"

namespace kelvarine {

void SetDefaults()
{
    SetGridDefaults();
    SetLevelDefaults();
    SetDriverDefaults();
    SetSoundDefaults();
    SetHistoryDefaults();
    SetUndoDefaults();
    SetLifecycleDefaults();
    SetClockDefaults();
    SetWinDisplayDefaults();
    SetGeneratorDefaults();
    GameNumber = 0;
    SetLookDefaults();
    SetGeometryDefaults();
    SetMarginDefaults();
    SetMouseDefaults();
    SetToolbarDefaults();
    SetToldDefaults();
    SetScreenDefaults();
    SetStatisticsDefaults();
    SetSolutionsDefaults();
    SetPrintDefaults();
    SetConfigurationDefaults();
    SetFileDialogDefaults();
    SetRecoveryDefaults();
    SetPageDefaults();
    SetPrintRunDefaults();
}

} // namespace kelvarine
