// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IPort.h>
#include <GenApi/IPortStacked.h>

namespace GENAPI_NAMESPACE {

/** The two ends of a connection tell each other: a port node is given the port, and a CPortImpl the node. */
struct ORV_GENAPI_EXPORT IPortConstruct : virtual public IPort
{
    virtual void SetPortImpl(IPort *pPort) = 0;

    /** Whether registers behind a port node have their bytes the other way round. */
    virtual EYesNo GetSwapEndianess() = 0;
};

/** The same for stacked ports. */
struct ORV_GENAPI_EXPORT IPortStackedConstruct
{
    virtual void SetPortImpl(IPortStacked *pPort) = 0;
    virtual EYesNo GetSwapEndianess() = 0;

    virtual ~IPortStackedConstruct() = default;
};

} // namespace GENAPI_NAMESPACE
