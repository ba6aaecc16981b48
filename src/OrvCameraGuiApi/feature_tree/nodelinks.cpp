// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/nodelinks.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

std::vector<GenApi::INode *> NodeLinks::readBy(const GenApi::INode &node)
{
    GenApi::NodeList_t nodes;
    failureOf([&] { node.GetChildren(nodes, GenApi::ctReadingChildren); });
    std::vector<GenApi::INode *> read;
    for (GenApi::INode *const child : nodes)
        read.push_back(child);
    return read;
}
