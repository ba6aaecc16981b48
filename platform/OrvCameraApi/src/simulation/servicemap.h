// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "addressrange.h"

#include <GenApi/GenApi.h>

#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace OrvCameraApi {

/**
 * The simulation's own access to registers, by the names in their description. It passes by faults, counts and the node
 * maps of applications. Any thread may use it.
 */
class ServiceMap
{
public:
    /** While one exists, nobody else uses the registers, so that nothing has to be read again. */
    class Alone
    {
    public:
        explicit Alone(ServiceMap &map)
            : m_map(map)
        {
            m_map.m_isAlone = true;
        }
        ~Alone() { m_map.m_isAlone = false; }
        Alone(const Alone &) = delete;
        Alone &operator=(const Alone &) = delete;

    private:
        ServiceMap &m_map;
    };

    /** \a rawPort outlives this object. Throws when the description cannot be used. */
    ServiceMap(const std::string &description, GenApi::IPort &rawPort);

    /** The register behind \a node, or behind NAMEReg for a feature NAME, at its present address, if there is one. */
    std::optional<AddressRange> find(const std::string &node);

    /** Writes a register in the text form of its node. Throws what the node throws, and when there is no node. */
    void set(const std::string &node, const std::string &value);

    /** Like set(), but without effect when there is no such register. */
    void setIfThere(const std::string &node, const std::string &value);

private:
    GenApi::INode *registerNode(const std::string &name) const;
    void forgetValues();

    std::mutex m_mutex;
    bool m_isAlone = false;
    const std::shared_ptr<GenApi::INodeMap> m_map;
};

} // namespace OrvCameraApi
