// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "usbpermission.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include <unistd.h>

namespace OrvCameraApi {

namespace {

namespace fs = std::filesystem;

/** The text that the kernel tells about a device, without the end of the line. */
std::string attribute(const fs::path &device, const char *name)
{
    std::string text;
    std::ifstream file(device / name);
    std::getline(file, text);
    return text;
}

/** Whether a directory of the kernel's list is an interface that speaks USB3 Vision. */
bool isUsb3Vision(const fs::path &interface)
{
    return attribute(interface, "bInterfaceClass") == "ef" && attribute(interface, "bInterfaceSubClass") == "05"
        && attribute(interface, "bInterfaceProtocol") == "00";
}

/** The file through which programs use a device. */
fs::path fileOf(const fs::path &root, const fs::path &device)
{
    const auto threeDigits = [](const std::string &number) {
        return std::string(number.size() < 3 ? 3 - number.size() : 0, '0') + number;
    };
    return root / "dev/bus/usb" / threeDigits(attribute(device, "busnum")) / threeDigits(attribute(device, "devnum"));
}

} // namespace

std::string usbPermissionProblem(const std::string &root)
{
    std::error_code error;
    fs::directory_iterator entry(fs::path(root) / "sys/bus/usb/devices", error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        // An interface "2-1:1.0" stands beside its device "2-1".
        const std::string name = entry->path().filename();
        const std::size_t colon = name.find(':');
        if (colon == name.npos || !isUsb3Vision(entry->path()))
            continue;
        const fs::path device = entry->path().parent_path() / name.substr(0, colon);
        const fs::path file = fileOf(root, device);
        if (::access(file.c_str(), F_OK) == 0 && ::access(file.c_str(), R_OK | W_OK) != 0)
            return "USB: " + attribute(device, "product") + " is plugged in, but you may not use " + file.string()
                + ". The udev rule 70-orv-usb3vision.rules in /etc/udev/rules.d gives the permission; then plug the "
                  "camera in again.";
    }
    return {};
}

} // namespace OrvCameraApi
