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

protected:
    ~ISelector() = default;
};

} // namespace GENAPI_NAMESPACE
