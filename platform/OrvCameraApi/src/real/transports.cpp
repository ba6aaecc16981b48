// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraApi/transports.h>

#include "transports.h"

#include "aravismodule.h"
#include "device.h"
#include "realcameras.h"
#include "session.h"
#include "world.h"

#include <cstdlib>
#include <mutex>
#include <string_view>

namespace OrvCameraApi {

namespace {

using OrvTransports::Cameras;

std::vector<std::string> splitAtCommas(std::string_view text)
{
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t comma = text.find(',');
        if (comma != 0)
            parts.emplace_back(text.substr(0, comma));
        text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    }
    return parts;
}

std::string_view variable(const char *name)
{
    const char *const value = std::getenv(name);
    return value ? value : "";
}

Cameras camerasOfEnvironment()
{
    const std::string_view cameras = variable("ORV_CAMERAS");
    if (cameras == "real")
        return Cameras::Real;
    return cameras == "both" ? Cameras::Both : Cameras::Simulated;
}

/** What the next system consists of. */
struct Choice
{
    std::mutex mutex;
    Cameras cameras = camerasOfEnvironment();

    Choice()
    {
        setDiscovery({splitAtCommas(variable("ORV_CAMERA_ADAPTERS")), splitAtCommas(variable("ORV_CAMERA_ADDRESSES"))});
    }
};

Choice &choice()
{
    static Choice choice;
    return choice;
}

} // namespace

std::vector<Backend *> chosenBackends()
{
    const Cameras cameras = OrvTransports::used();
    std::vector<Backend *> backends;
    if (cameras != Cameras::Simulated && AravisModule::isInstalled())
        backends.push_back(&realCameras());
    if (cameras != Cameras::Real)
        backends.push_back(&World::instance());
    return backends;
}

} // namespace OrvCameraApi

namespace OrvTransports {

bool canReachRealCameras()
{
    return OrvCameraApi::AravisModule::isInstalled();
}

void use(Cameras cameras)
{
    OrvCameraApi::Choice &choice = OrvCameraApi::choice();
    const std::lock_guard<std::mutex> lock(choice.mutex);
    choice.cameras = cameras;
    if (cameras == Cameras::Simulated)
        OrvCameraApi::stopLooking();
}

void use(Cameras cameras, const Discovery &discovery)
{
    OrvCameraApi::choice(); // takes the environment's restriction first
    OrvCameraApi::setDiscovery(discovery); // before anybody looks
    use(cameras);
}

Cameras used()
{
    OrvCameraApi::Choice &choice = OrvCameraApi::choice();
    const std::lock_guard<std::mutex> lock(choice.mutex);
    return choice.cameras;
}

std::vector<std::string> problems()
{
    return OrvCameraApi::problemsOfRealCameras();
}

Progress progressOf(OrvCam::Device &device)
{
    const auto *const open = dynamic_cast<OrvCameraApi::Device *>(&device);
    if (!open)
        return {};
    const OrvCameraApi::OpeningProgress progress = open->session()->progress();
    switch (progress.step) {
    case OrvCameraApi::OpeningStep::Connecting:
        return {Step::Connecting, progress.failure};
    case OrvCameraApi::OpeningStep::Description:
        return {Step::Description, progress.failure};
    case OrvCameraApi::OpeningStep::Features:
        return {Step::Features, progress.failure};
    case OrvCameraApi::OpeningStep::Connected:
        break;
    case OrvCameraApi::OpeningStep::Lost:
        return {Step::Lost, progress.failure};
    }
    return {};
}

} // namespace OrvTransports
