#pragma once

#include "portmonitor.h"

#include <GenApi/GenApi.h>
#include <OrvGenApi/nodemap.h>

#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace OrvCameraApi {

/**
 * The simulation's own view of a device's registers, by the names in its description. Goes past faults, counts and the
 * node maps of applications. Any thread may use it.
 */
class ServiceMap
{
public:
    /** \a rawPort outlives this object. Throws when the description cannot be used. */
    ServiceMap(const std::string &description, GenApi::IPort &rawPort);

    /** The register that \a node, or NAMEReg for a feature NAME, stands for now; without a value if there is none. */
    std::optional<AddressRange> find(const std::string &node);

    /** Writes a register in the text form of its node; throws what the node throws, and when there is none. */
    void set(const std::string &node, const std::string &value);

    /** The same; nothing happens when there is no such register. */
    void setIfThere(const std::string &node, const std::string &value);

    std::string modelName() const { return m_map->modelName(); }
    std::string vendorName() const { return m_map->vendorName(); }

private:
    GenApi::INode *registerNode(const std::string &name) const;

    std::mutex m_mutex;
    const std::unique_ptr<OrvGenApi::NodeMap> m_map;
};

} // namespace OrvCameraApi
