#include <OrvCameraGuiApi/background/periods.h>

namespace OrvGui {

Periods &periods()
{
    static Periods inForce;
    return inForce;
}

} // namespace OrvGui
