#pragma once

#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

/** What every object of a node map has. */
struct ORV_GENAPI_EXPORT IBase
{
    /** What may be done now; derived from the node's own mode, its locks and all that it depends on. */
    virtual EAccessMode GetAccessMode() const = 0;

protected:
    ~IBase() = default;
};

} // namespace GENAPI_NAMESPACE
