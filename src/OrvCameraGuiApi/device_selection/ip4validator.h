#pragma once

// The path that applications include. The class is in a room that the feature tree uses as well.
#include <OrvCameraGuiApi/addresses/ip4validator.h>
