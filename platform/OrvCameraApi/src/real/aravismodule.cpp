// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "aravismodule.h"

#include "aravislinks.h"

#include <dlfcn.h>
#include <unistd.h>

namespace OrvCameraApi::AravisModule {

namespace {

/** Beside this library. */
std::string path()
{
    Dl_info info{};
    if (::dladdr(reinterpret_cast<const void *>(&isInstalled), &info) == 0 || !info.dli_fname)
        return {};
    const std::string library = info.dli_fname;
    return library.substr(0, library.rfind('/') + 1) + ORV_ARAVIS_MODULE;
}

/** The functions of the module; it stays loaded. */
struct Module
{
    void *handle = ::dlopen(path().c_str(), RTLD_NOW | RTLD_LOCAL);
    std::string failure = handle ? "" : ::dlerror();
    decltype(&orvAravisOpenGige) openGige = find<decltype(&orvAravisOpenGige)>("orvAravisOpenGige");
    decltype(&orvAravisListUsb) listUsb = find<decltype(&orvAravisListUsb)>("orvAravisListUsb");
    decltype(&orvAravisOpenUsb) openUsb = find<decltype(&orvAravisOpenUsb)>("orvAravisOpenUsb");

    template <typename Function>
    Function find(const char *name) const
    {
        return handle ? reinterpret_cast<Function>(::dlsym(handle, name)) : nullptr;
    }

    bool isComplete() const { return openGige && listUsb && openUsb; }

    void require() const
    {
        if (!isComplete())
            throw LinkError(LinkError::Kind::Failed, "Real cameras cannot be reached: " + failure);
    }
};

const Module &module()
{
    static const Module module;
    return module;
}

} // namespace

bool isInstalled()
{
    return ::access(path().c_str(), R_OK) == 0;
}

std::unique_ptr<CameraLink> openGige(std::uint32_t adapter, std::uint32_t address, bool isReadOnly,
                                     const IsWanted &isWanted)
{
    module().require();
    return std::unique_ptr<CameraLink>(module().openGige(adapter, address, isReadOnly, isWanted));
}

std::unique_ptr<CameraLink> openUsb(const std::string &id, const IsWanted &isWanted)
{
    module().require();
    return std::unique_ptr<CameraLink>(module().openUsb(id.c_str(), isWanted));
}

UsbDiscovery::Found usbCameras()
{
    UsbDiscovery::Found found;
    if (module().isComplete())
        module().listUsb(found.cameras);
    else
        found.problem = "USB cameras cannot be reached: " + module().failure;
    return found;
}

} // namespace OrvCameraApi::AravisModule
