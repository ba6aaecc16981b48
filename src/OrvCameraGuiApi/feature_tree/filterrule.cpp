// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/filterrule.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

bool FilterRule::accepts(GenApi::INode *node, GenApi::INode *category) const
{
    const OpenCalls::Call call;
    return passes(node, category) && isImplemented(node).value_or(true);
}

bool FilterRule::passes(GenApi::INode *node, GenApi::INode *category) const
{
    if (!choice.accepts(node, category))
        return false;
    if (!node)
        return true;
    bool isTooHigh = false;
    failureOf([&] { isTooHigh = int(node->GetVisibility()) > level; });
    return !isTooHigh && acceptsName(*node);
}

std::optional<bool> FilterRule::isImplemented(GenApi::INode *node)
{
    if (!node)
        return true;
    std::optional<bool> isImplemented;
    failureOf([&] { isImplemented = node->GetAccessMode() != GenApi::NI; });
    return isImplemented;
}

bool FilterRule::acceptsName(GenApi::INode &node) const
{
    if (pattern.pattern().isEmpty() || (!wholeWords && pattern.matchesAll()))
        return true;
    bool accepted = true;
    failureOf([&] {
        if (node.GetPrincipalInterfaceType() == GenApi::intfICategory)
            return;
        const auto matches = [this](const GenICam::gcstring &text) {
            const QString name = fromGenICam(text);
            return wholeWords ? pattern.isAll(name) : pattern.isIn(name);
        };
        accepted = matches(node.GetDisplayName()) || (matchesNodeNames && matches(node.GetName()));
    });
    return accepted;
}
