// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Container.h>
#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/** A group of features. */
struct ORV_GENAPI_EXPORT ICategory : virtual public IValue
{
    /** The direct children, in the order of the description. */
    virtual void GetFeatures(FeatureList_t &Features) const = 0;
};

template <typename T>
class CCategoryRefT : public CValueRefT<T>
{
public:
    void GetFeatures(FeatureList_t &Features) const override { this->referred().GetFeatures(Features); }
};

using CCategoryRef = CCategoryRefT<ICategory>;

} // namespace GENAPI_NAMESPACE
