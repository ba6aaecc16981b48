// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraApi/simulation.h>

#include "descriptions.h"

#include <GenApi/GenApi.h>
#include <OrvGenApi/nodemap.h>

#include <fstream>
#include <sstream>

namespace OrvSim {

using OrvCameraApi::description;

DeviceSpec twoFrameCamera()
{
    DeviceSpec spec;
    spec.vendor = "Orv";
    spec.model = "TF-2000C";
    spec.version = "1.4";
    spec.userDefinedName = "";
    spec.description = description("twoframecamera.xml");
    spec.powerUp = description("common.powerup") + description("twoframecamera.powerup");
    return spec;
}

DeviceSpec monochromeCamera()
{
    DeviceSpec spec;
    spec.vendor = "Orv";
    spec.model = "SF-1300M";
    spec.version = "1.1";
    spec.userDefinedName = "";
    spec.description = description("monochromecamera.xml");
    spec.powerUp = description("common.powerup") + description("monochromecamera.powerup");
    return spec;
}

DeviceSpec cameraFromText(const std::string &text)
{
    DeviceSpec spec;
    spec.version = "";
    spec.userDefinedName = "";
    spec.serialNumber = "";
    spec.description = text;
    try {
        const auto map = OrvGenApi::NodeMap::fromString(text);
        spec.vendor = map->vendorName();
        spec.model = map->modelName();
        spec.displayName = map->modelName();
    } catch (const GenICam::GenericException &) {
        // addDevice() reports the fault; until then the texts are missing.
    }
    return spec;
}

DeviceSpec cameraFromFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    if (!file || !(text << file.rdbuf())) {
        const std::string reason = path + ": cannot be read";
        throw GenICam::RuntimeException(reason.c_str(), __FILE__, __LINE__);
    }
    return cameraFromText(text.str());
}

} // namespace OrvSim
