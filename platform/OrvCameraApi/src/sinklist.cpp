#include "sinklist.h"

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

void SinkList::add(OrvGenParam::ParamEventSink *sink)
{
    const auto same = [sink](const Entry &entry) { return entry.sink == sink; };
    if (std::none_of(m_sinks.begin(), m_sinks.end(), same))
        m_sinks.push_back({sink, ++m_registrations, std::make_unique<Counted>(liveCounts().sinks)});
}

void SinkList::remove(OrvGenParam::ParamEventSink *sink)
{
    const auto same = [sink](const Entry &entry) { return entry.sink == sink; };
    m_sinks.erase(std::remove_if(m_sinks.begin(), m_sinks.end(), same), m_sinks.end());
}

void SinkList::deliver(OrvGenParam::Param *param)
{
    std::vector<std::pair<OrvGenParam::ParamEventSink *, std::uint64_t>> snapshot;
    snapshot.reserve(m_sinks.size());
    for (const Entry &entry : m_sinks)
        snapshot.emplace_back(entry.sink, entry.registration);
    for (const auto &[sink, registration] : snapshot) {
        if (holds(registration))
            sink->OnParameterUpdate(param);
    }
}

bool SinkList::holds(std::uint64_t registration) const
{
    return std::any_of(m_sinks.begin(), m_sinks.end(),
                       [registration](const Entry &entry) { return entry.registration == registration; });
}

} // namespace OrvCameraApi
