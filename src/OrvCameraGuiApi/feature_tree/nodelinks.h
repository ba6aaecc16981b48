// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <algorithm>
#include <vector>

/** The links between the nodes of a description. A walk along them is bounded, whatever the description has. */
namespace NodeLinks {

/** The nodes that \a node reads; none if it cannot tell. */
std::vector<GenApi::INode *> readBy(const GenApi::INode &node);

/** Calls \a visit with \a first, not null, and the nodes that \a next finds from there, until it returns true. */
template <typename Next, typename Visit>
bool search(GenApi::INode *first, Next next, Visit visit)
{
    constexpr size_t most = 200;
    std::vector<GenApi::INode *> found{first};
    for (size_t i = 0; i < found.size(); ++i) {
        if (visit(*found[i]))
            return true;
        for (GenApi::INode *const node : next(*found[i])) {
            if (found.size() < most && std::find(found.begin(), found.end(), node) == found.end())
                found.push_back(node);
        }
    }
    return false;
}

} // namespace NodeLinks
