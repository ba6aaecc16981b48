#pragma once

#include <GenApi/INode.h>
#include <GenApi/IPort.h>

namespace GENAPI_NAMESPACE {

/** Base of an application's own port; Read(), Write() and GetAccessMode() are its matter. */
class CPortImpl : public IPort
{
public:
    CPortImpl() = default;
    virtual ~CPortImpl() = default;
};

} // namespace GENAPI_NAMESPACE
