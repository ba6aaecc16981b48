// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/featurechoice.h>
#include <OrvCameraGuiApi/feature_tree/wildcardmatcher.h>

#include <GenApi/GenApi.h>

#include <optional>

/** Which features pass the filter of the feature tree, each asked by itself. */
struct FilterRule
{
    /**
     * Whether \a node passes, which may be null. Whatever cannot be read of a node does not keep it from being shown.
     * The access mode, which may ask the device, is asked for last.
     */
    bool accepts(GenApi::INode *node, GenApi::INode *category) const;

    /**
     * Whether level, pattern and choice let \a node pass in \a category, which is null at the top, without asking for
     * its access mode. The caller holds a Call.
     */
    bool passes(GenApi::INode *node, GenApi::INode *category) const;

    /** Nothing if \a node cannot tell. The caller holds a Call. */
    static std::optional<bool> isImplemented(GenApi::INode *node);

    int level = 0; ///< the highest visibility that passes
    WildcardMatcher pattern; ///< for display names; an empty one lets every name pass
    bool wholeWords = false; ///< whether the pattern has to match the whole name
    bool matchesNodeNames = false; ///< whether a match of the GenICam name will do too
    FeatureChoice choice; ///< all by default

private:
    bool acceptsName(GenApi::INode &node) const;
};
