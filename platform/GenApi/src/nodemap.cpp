// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvGenApi/nodemap.h>

#include "descriptionloader.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <new>

namespace OrvGenApi {

std::string contentOf(const std::string &path)
{
    errno = 0;
    try {
        std::ifstream file(path, std::ios::binary);
        if (file.is_open())
            return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    } catch (const std::ios_base::failure &) {
        // told below, as what cannot be opened: the buffer itself throws for a directory or a bad disk
    }
    ORV_THROW(RuntimeException, path + ": cannot be read: " + std::strerror(errno));
}

std::unique_ptr<NodeMap> NodeMap::fromFile(const std::string &path, const std::string &deviceName)
{
    return fromString(contentOf(path), path, deviceName);
}

std::unique_ptr<NodeMap> NodeMap::fromString(std::string_view xml, const std::string &sourceName,
                                             const std::string &deviceName)
{
    return NodeMapImpl::load(std::string(xml), sourceName, deviceName);
}

std::unique_ptr<NodeMapImpl> NodeMapImpl::load(std::string xml, const std::string &sourceName,
                                               const std::string &deviceName, GenApi::CLock *lock)
{
    auto map = std::make_unique<NodeMapImpl>(deviceName, lock);
    try {
        DescriptionLoader(*map, std::move(xml), sourceName).load();
    } catch (const std::bad_alloc &) {
        throw GenICam::BadAllocException((sourceName + ": too large").c_str(), __FILE__, __LINE__);
    }
    return map;
}

} // namespace OrvGenApi
