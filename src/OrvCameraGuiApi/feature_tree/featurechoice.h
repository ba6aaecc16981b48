// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <QSet>
#include <QVector>

#include <optional>

/** Which features of a node map are to be shown, named one by one or by their category. All of them by default. */
class FeatureChoice
{
public:
    /** Only \a features, and the categories that they stand in. May ask the nodes' names and links, no registers. */
    void setFeatures(const QVector<GenApi::INode *> &features);

    /** Only \a category with all that is in it, and the categories that it stands in. Asks like setFeatures(). */
    void setCategory(GenApi::INode *category);

    bool isAll() const { return !m_features && !m_category; }

    /** Of \a node, which may be null, in \a category, which is null at the top. Asks no node. */
    bool accepts(GenApi::INode *node, GenApi::INode *category) const;

private:
    using Nodes = QSet<GenApi::INode *>;

    struct Category
    {
        Nodes inside; ///< the categories whose rows are shown
        Nodes above; ///< the way there
    };

    std::optional<Nodes> m_features; ///< with their categories
    std::optional<Category> m_category;
};
