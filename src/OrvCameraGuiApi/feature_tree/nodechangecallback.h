// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/background/reportrelay.h>

#include <GenApi/GenApi.h>

/**
 * The callback of a node: reports the tag that stands for the node, so that no receiver has to look it up. Small,
 * because there is one for each feature; all of them share one relay.
 */
template <typename Tag>
class NodeChangeCallback
{
public:
    using Reporter = typename OrvGui::ReportRelay<Tag>::Reporter;

    NodeChangeCallback(const Reporter &reporter, const Tag &tag)
        : m_reporter(reporter)
        , m_tag(tag)
    {
    }

    void operator()(GenApi::INode *) const { m_reporter.report(m_tag); }
    explicit operator bool() const { return true; } // GenApi asks before it calls

private:
    Reporter m_reporter;
    Tag m_tag;
};
