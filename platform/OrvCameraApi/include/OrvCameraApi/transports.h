// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <string>
#include <vector>

#ifndef ORV_CAMERAAPI_EXPORT
#define ORV_CAMERAAPI_EXPORT __attribute__((visibility("default")))
#endif

/**
 * Which cameras OrvCam_GetSystem() gives: simulated ones, real ones, or both.
 *
 * A program that says nothing gets what the environment says: ORV_CAMERAS is "simulated", "real" or "both";
 * ORV_CAMERA_ADAPTERS and ORV_CAMERA_ADDRESSES are lists with commas, as Discovery describes them. Without these
 * variables cameras are simulated. Network and USB are touched only while a system with real cameras exists.
 *
 * Every function may be called from any thread.
 */
namespace OrvTransports {

enum class Cameras { Simulated, Real, Both };

/** Where GigE Vision cameras are looked for. */
struct Discovery
{
    /** Names ("eth0") or IPv4 addresses of network adapters; empty: all that are up, except the loopback adapter. */
    std::vector<std::string> adapters;

    /** IPv4 addresses of cameras. If there are any, only these are asked, and nothing is broadcast. */
    std::vector<std::string> addresses;
};

/** Whether the module that links to real cameras is installed beside this library. Without it there are none. */
ORV_CAMERAAPI_EXPORT bool canReachRealCameras();

/**
 * From the next call of OrvCam_GetSystem() on, also for a system that exists. Devices that are open stay open.
 */
ORV_CAMERAAPI_EXPORT void use(Cameras cameras);

/** The same, and from now on real cameras are looked for only there. */
ORV_CAMERAAPI_EXPORT void use(Cameras cameras, const Discovery &discovery);

/** The choice that is in force. */
ORV_CAMERAAPI_EXPORT Cameras used();

/**
 * Why real cameras may be missing or cannot be opened, and what can be done, as sentences in UTF-8: no camera has
 * answered for some seconds, the system forbids to ask, a USB camera may not be used, another program controls a camera
 * (with the address of that program), or Discovery names what is not there. Empty without a system with real cameras.
 * Of the newest round; waits for nothing.
 */
ORV_CAMERAAPI_EXPORT std::vector<std::string> problems();

/** How far an open device is on its way to its features. */
enum class Step {
    Connecting, ///< the camera is looked for and asked; also after a failure
    Description, ///< its description is fetched
    Features, ///< its features are made
    Connected,
    Lost ///< it was connected and does not answer any more
};

struct Progress
{
    Step step = Step::Connected;
    std::string failure; ///< why the last attempt to open the camera has failed, UTF-8; empty otherwise
};

/**
 * OrvCam_CreateDevice() returns before a real camera is open; OrvCam::EventDeviceConnected tells when its parameters
 * can be had. Meanwhile this tells what it waits for. A simulated camera is connected or lost.
 */
ORV_CAMERAAPI_EXPORT Progress progressOf(OrvCam::Device &device);

} // namespace OrvTransports
