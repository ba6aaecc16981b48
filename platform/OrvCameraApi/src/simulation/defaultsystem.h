// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace OrvCameraApi {

class World;

/** Fills an empty world with the default system, see OrvSim::reset(). */
void buildDefaultSystem(World &world);

} // namespace OrvCameraApi
