// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

// The path that applications include. The class is in a room that the feature tree uses as well.
#include <OrvCameraGuiApi/addresses/ip4validator.h>
