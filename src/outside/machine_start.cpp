#include "outside/machine_start.h"

#include "outside/whole_file.h"

namespace kelvarine {

std::string MachineStart()
{
    std::string name;
    std::string untold;
    ReadWholeFile("/proc/sys/kernel/random/boot_id", name, untold, MachineStartSize);
    return name.size() == MachineStartSize ? name : std::string();
}

} // namespace kelvarine
