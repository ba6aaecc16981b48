// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCTypes.h>

#include <vector>

namespace GENAPI_NAMESPACE {

GENICAM_INTERFACE INode;
GENICAM_INTERFACE IValue;

/** Objects of a node map, to which they belong, in the order of its description. */
template <typename T>
class object_vector : public std::vector<T *>
{
public:
    using Vector = std::vector<T *>;
    using Vector::erase;
    using Vector::insert;
    using Vector::Vector;

    // Also by place.
    void erase(std::size_t uiIndex) { this->erase(this->begin() + static_cast<std::ptrdiff_t>(uiIndex)); }
    void insert(std::size_t uiIndex, T *const &val)
    {
        this->insert(this->begin() + static_cast<std::ptrdiff_t>(uiIndex), val);
    }
};

/** Nodes. */
class node_vector : public object_vector<INode>
{
public:
    using object_vector::object_vector;
};

/** Features. */
class value_vector : public object_vector<IValue>
{
public:
    using object_vector::object_vector;
};

using NodeList_t = node_vector;
using FeatureList_t = value_vector;

} // namespace GENAPI_NAMESPACE
