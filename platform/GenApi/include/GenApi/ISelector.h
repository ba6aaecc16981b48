// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Container.h>
#include <GenApi/IBase.h>

namespace GENAPI_NAMESPACE {

/** A feature whose value decides what other features refer to, or one that is referred so. */
struct ORV_GENAPI_EXPORT ISelector : virtual public IBase
{
    virtual bool IsSelector() const = 0;
    virtual void GetSelectedFeatures(FeatureList_t &Features) const = 0;
    virtual void GetSelectingFeatures(FeatureList_t &Features) const = 0;
};

template <typename T>
class CSelectorRefT : public CBaseRefT<T>
{
public:
    bool IsSelector() const override { return this->referred().IsSelector(); }
    void GetSelectedFeatures(FeatureList_t &Features) const override { this->referred().GetSelectedFeatures(Features); }
    void GetSelectingFeatures(FeatureList_t &Features) const override
    {
        this->referred().GetSelectingFeatures(Features);
    }
};

using CSelectorRef = CSelectorRefT<ISelector>;

} // namespace GENAPI_NAMESPACE
