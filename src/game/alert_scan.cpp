#include "game/alert_scan.h"

#include "game/event_sound.h"
#include "logic/alerts.h"

namespace kelvarine {

void ScanAlerts(std::int32_t mode)
{
    if (RunAlertScan(mode) && AlertSound > 0 && SoundDisabled == False) {
        PlayEventSound(SoundFile(AlertFiles, AlertSound), AlertVolume, false);
    }
}

} // namespace kelvarine
