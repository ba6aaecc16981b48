#pragma once

namespace OrvCameraApi {

class World;

/** Fills an empty world with the default system, see OrvSim::reset(). */
void buildDefaultSystem(World &world);

} // namespace OrvCameraApi
