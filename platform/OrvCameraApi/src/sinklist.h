#pragma once

#include "livecounts.h"

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace OrvCameraApi {

/**
 * The receivers of one parameter's changes. Used under the lock of the node map, so that a delivery on one thread and
 * a removal on another never overlap.
 */
class SinkList
{
public:
    bool isEmpty() const { return m_sinks.empty(); }

    /** A sink that is there already stays as it is. */
    void add(OrvGenParam::ParamEventSink *sink);
    void remove(OrvGenParam::ParamEventSink *sink);

    /** Tells those that are there now, except those that go, or go and come back, during the delivery. */
    void deliver(OrvGenParam::Param *param);

private:
    struct Entry
    {
        OrvGenParam::ParamEventSink *sink;
        std::uint64_t registration; ///< tells a sink from a later one at the same place
        std::unique_ptr<Counted> counted;
    };

    bool holds(std::uint64_t registration) const;

    std::vector<Entry> m_sinks;
    std::uint64_t m_registrations = 0;
};

} // namespace OrvCameraApi
