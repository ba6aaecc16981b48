// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/featurechoice.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

using GenApi::INode;

namespace {

bool isCategoryNode(INode *node)
{
    bool is = false;
    failureOf([&] { is = node && node->GetPrincipalInterfaceType() == GenApi::intfICategory; });
    return is;
}

/** Those that list \a node. */
QVector<INode *> categoriesOf(INode &node)
{
    GenApi::NodeList_t parents;
    failureOf([&] { node.GetParents(parents); });
    QVector<INode *> categories;
    for (INode *const parent : parents) {
        if (isCategoryNode(parent))
            categories.append(parent);
    }
    return categories;
}

QVector<INode *> categoriesIn(INode &node)
{
    QVector<INode *> categories;
    failureOf([&] {
        GenApi::FeatureList_t features;
        if (const GenApi::CCategoryPtr category(&node); category.IsValid())
            category->GetFeatures(features);
        for (GenApi::IValue *const feature : features) {
            INode *const inner = feature ? feature->GetNode() : nullptr;
            if (isCategoryNode(inner))
                categories.append(inner);
        }
    });
    return categories;
}

/** \a nodes and all that \a next finds from there. Not recursive: a description decides how deep it goes. */
QSet<INode *> reached(QVector<INode *> nodes, QVector<INode *> (*next)(INode &))
{
    QSet<INode *> known;
    while (!nodes.isEmpty()) {
        INode *const node = nodes.takeLast();
        if (!node || known.contains(node))
            continue;
        known.insert(node);
        nodes += next(*node);
    }
    return known;
}

} // namespace

void FeatureChoice::setFeatures(const QVector<INode *> &features)
{
    m_features = reached(features, categoriesOf);
}

void FeatureChoice::setCategory(INode *category)
{
    m_category = {reached({category}, categoriesIn), reached({category}, categoriesOf)};
}

bool FeatureChoice::accepts(INode *node, INode *category) const
{
    if (m_features && !m_features->contains(node))
        return false;
    return !m_category || m_category->inside.contains(category) || m_category->above.contains(node);
}
