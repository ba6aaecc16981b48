// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>

namespace OrvCameraApi {

/** Holds the lock of a node map. */
class NodeMapLock
{
public:
    explicit NodeMapLock(const GenApi::INodeMap &map)
        : m_lock(map.GetLock())
    {
        m_lock.Lock();
    }
    ~NodeMapLock() { m_lock.Unlock(); }
    NodeMapLock(const NodeMapLock &) = delete;
    NodeMapLock &operator=(const NodeMapLock &) = delete;

private:
    GenApi::CLock &m_lock;
};

} // namespace OrvCameraApi
