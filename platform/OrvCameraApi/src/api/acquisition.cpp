// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "acquisition.h"

#include "genapierror.h"
#include "nodemaplock.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace OrvCameraApi {

Acquisition::Acquisition(GenApi::INodeMap &map, Write write)
    : m_map(map)
    , m_write(std::move(write))
{
}

void Acquisition::lockFeatures()
{
    m_isLocked = true;
    failureOf([this] { setLocked(true); }); // pictures come without as well
}

void Acquisition::start()
{
    m_isStarted = true; // also if that fails: an answer may have been lost
    const std::string failure = failureOf([this] {
        if (!execute("AcquisitionStart"))
            m_isStarted = false;
    });
    if (!failure.empty()) {
        const std::string text = "The acquisition cannot be started: " + failure;
        throw GenICam::RuntimeException(text.c_str(), __FILE__, __LINE__);
    }
}

std::string Acquisition::stop(bool isLost)
{
    std::string failure;
    if (std::exchange(m_isStarted, false) && !isLost)
        failure = failureOf([this] { execute("AcquisitionStop"); });
    if (std::exchange(m_isLocked, false))
        failureOf([this] { setLocked(false); }); // of a camera that is lost it may be in the camera
    return failure.empty() ? failure : "The acquisition cannot be stopped: " + failure;
}

std::uint64_t Acquisition::frameLimit() const
{
    const NodeMapLock lock(m_map); // mode and number belong together
    if (isChosen("AcquisitionMode", "SingleFrame"))
        return 1;
    std::int64_t count = 0;
    if (isChosen("AcquisitionMode", "MultiFrame"))
        failureOf([&] { count = GenApi::CIntegerPtr(m_map.GetNode("AcquisitionFrameCount"))->GetValue(); });
    return std::uint64_t(std::max<std::int64_t>(count, 0));
}

bool Acquisition::isTriggered() const
{
    return isChosen("TriggerMode", "On");
}

std::chrono::milliseconds Acquisition::frameTime() const
{
    const double rate = number("AcquisitionFrameRate");
    const double microseconds = std::max(number("ExposureTime"), rate > 0 ? 1e6 / rate : 0);
    return std::chrono::milliseconds(std::int64_t(std::min(microseconds / 1000, 3600e3)));
}

/** 0 as well if it cannot be told. */
double Acquisition::number(const char *feature) const
{
    double value = 0;
    failureOf([&] {
        const NodeMapLock lock(m_map);
        const GenApi::CFloatPtr number(m_map.GetNode(feature));
        value = number.IsValid() ? number->GetValue() : 0;
    });
    return std::isfinite(value) ? value : 0;
}

/** False as well if that cannot be told. */
bool Acquisition::isChosen(const char *feature, const char *entry) const
{
    bool isChosen = false;
    failureOf([&] {
        const NodeMapLock lock(m_map);
        const GenApi::CEnumerationPtr choice(m_map.GetNode(feature));
        GenApi::IEnumEntry *const current = choice.IsValid() ? choice->GetCurrentEntry() : nullptr;
        isChosen = current && current->GetSymbolic() == entry;
    });
    return isChosen;
}

bool Acquisition::setLocked(bool locked)
{
    const GenApi::CIntegerPtr integer(m_map.GetNode("TLParamsLocked"));
    const GenApi::CBooleanPtr boolean(m_map.GetNode("TLParamsLocked"));
    return m_write([&] {
        if (integer.IsValid())
            integer->SetValue(locked ? 1 : 0);
        else if (boolean.IsValid())
            boolean->SetValue(locked);
    });
}

/** False if there is no such command, or nothing may be written. */
bool Acquisition::execute(const char *command)
{
    const GenApi::CCommandPtr found(m_map.GetNode(command));
    return found.IsValid() && m_write([&] { found->Execute(); });
}

} // namespace OrvCameraApi
