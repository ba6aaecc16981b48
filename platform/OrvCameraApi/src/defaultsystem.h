#pragma once

namespace OrvCameraApi {

class World;

/** Fills an empty world with what a newcomer finds. */
void buildDefaultSystem(World &world);

} // namespace OrvCameraApi
