#include "logic/group_walk.h"

namespace kelvarine {

std::string GroupName(std::int32_t size)
{
    switch (size) {
    case 1:
        return "single";
    case 2:
        return "pair";
    case 3:
        return "triple";
    case 4:
        return "quad";
    default:
        return std::to_string(size) + "-cell group";
    }
}

} // namespace kelvarine
