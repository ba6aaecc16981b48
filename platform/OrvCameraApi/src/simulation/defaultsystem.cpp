// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "defaultsystem.h"

#include "world.h"

#include <OrvCameraApi/simulation.h>

namespace OrvCameraApi {

namespace {

constexpr std::uint32_t ip(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d)
{
    return a << 24 | b << 16 | c << 8 | d;
}

OrvSim::InterfaceSpec interfaceSpec(const char *name, std::int32_t type, const char *description)
{
    OrvSim::InterfaceSpec spec;
    spec.name = name;
    spec.id = name;
    spec.type = type;
    spec.description = description;
    spec.version = "1.0.0";
    return spec;
}

OrvSim::DeviceSpec deviceSpec(OrvSim::DeviceSpec spec, const char *name, const char *serialNumber)
{
    spec.name = name;
    spec.id = name;
    spec.serialNumber = serialNumber;
    spec.displayName = spec.model.value_or("Camera") + " (" + serialNumber + ')';
    return spec;
}

void addGigE(World &world)
{
    OrvSim::InterfaceSpec adapter =
        interfaceSpec("ORV-ETH-0", OrvCam::InterfaceTypeGigEVision, "Gigabit Ethernet adapter");
    adapter.macAddress = 0x02005E100001;
    adapter.network = {ip(192, 168, 10, 1), ip(255, 255, 255, 0), 0};
    world.add(adapter);

    OrvSim::DeviceSpec camera = deviceSpec(OrvSim::twoFrameCamera(), "ORV-GIGE-0001", "SN0001");
    camera.userDefinedName = "Line 1";
    camera.macAddress = 0x02005E200001;
    camera.network = {ip(192, 168, 10, 11), ip(255, 255, 255, 0), ip(192, 168, 10, 254)};
    world.add(adapter.name, camera);

    OrvSim::DeviceSpec stray = deviceSpec(OrvSim::twoFrameCamera(), "ORV-GIGE-0002", "SN0002");
    stray.userDefinedName = "Line 2";
    stray.macAddress = 0x02005E200002;
    stray.network = {ip(10, 0, 0, 12), ip(255, 0, 0, 0), 0};
    stray.accessStatus = OrvCam::AccessStatusIpSubnetMismatch;
    world.add(adapter.name, stray);
}

void addUsb3(World &world)
{
    const OrvSim::InterfaceSpec controller =
        interfaceSpec("ORV-XHCI-0", OrvCam::InterfaceTypeUsb3Vision, "USB 3 host controller");
    world.add(controller);

    OrvSim::DeviceSpec camera = deviceSpec(OrvSim::monochromeCamera(), "ORV-USB3-0001", "SN0101");
    camera.usbVersion = 0x0210; // on a USB 2 port
    world.add(controller.name, camera);
}

} // namespace

void buildDefaultSystem(World &world)
{
    addGigE(world);
    addUsb3(world);
    world.add(interfaceSpec("ORV-CL-0", OrvCam::InterfaceTypeCameraLink, "CameraLink frame grabber"));
}

} // namespace OrvCameraApi
