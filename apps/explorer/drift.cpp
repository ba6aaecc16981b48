// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "drift.h"

#include <OrvCameraApi/simulation.h>

#include <GenApi/GenApi.h>

#include <algorithm>
#include <cstdint>

namespace {

constexpr int interval = 500; // milliseconds

} // namespace

Drift::Drift(QObject *parent)
    : QObject(parent)
    , m_features{{"Frame_ExposureLinesReg", 1, 400, 5},
                 {"Frame_BlackLevelReg", 0, 64, 1},
                 {"ExposureTimeReg", 100, 20000, 100},
                 {"BlackLevelReg", 0, 64, 1}}
{
    connect(&m_timer, &QTimer::timeout, this, &Drift::moveAll);
}

void Drift::setCamera(const std::string &id, GenApi::INodeMap *nodeMap)
{
    stop();
    m_camera = id;
    m_nodeMap = nodeMap;
}

void Drift::start()
{
    if (m_nodeMap)
        m_timer.start(interval);
}

void Drift::stop()
{
    m_timer.stop();
}

/** From where each is: a value that people set goes on from there. */
void Drift::moveAll()
{
    for (Feature &feature : m_features) {
        try {
            move(feature);
        } catch (const GenICam::GenericException &) {
            // The camera is unplugged, or does not tell this value.
        }
    }
}

void Drift::move(Feature &feature)
{
    const GenApi::CIntegerPtr number(m_nodeMap->GetNode(feature.name.c_str()));
    if (!number.IsValid())
        return;
    const std::int64_t now = std::clamp<std::int64_t>(number->GetValue(), feature.lowest, feature.highest);
    if (now + feature.step < feature.lowest || now + feature.step > feature.highest)
        feature.step = -feature.step;
    OrvSim::setRegister(m_camera, feature.name, std::to_string(now + feature.step));
    number->GetNode()->InvalidateNode();
}
