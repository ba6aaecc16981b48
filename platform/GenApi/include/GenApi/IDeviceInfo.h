// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCString.h>
#include <Base/GCTypes.h>

namespace GENAPI_NAMESPACE {

/** What a description says about itself; empty or 0 where it does not. */
struct ORV_GENAPI_EXPORT IDeviceInfo
{
    virtual GENICAM_NAMESPACE::gcstring GetModelName() = 0;
    virtual GENICAM_NAMESPACE::gcstring GetVendorName() = 0;
    virtual GENICAM_NAMESPACE::gcstring GetToolTip() = 0;
    virtual GENICAM_NAMESPACE::gcstring GetStandardNameSpace() = 0;

    /** The version of these interfaces. */
    virtual void GetGenApiVersion(GENICAM_NAMESPACE::Version_t &Version, uint16_t &Build) = 0;
    virtual void GetSchemaVersion(GENICAM_NAMESPACE::Version_t &Version) = 0;
    virtual void GetDeviceVersion(GENICAM_NAMESPACE::Version_t &Version) = 0;
    virtual GENICAM_NAMESPACE::gcstring GetProductGuid() = 0;
    virtual GENICAM_NAMESPACE::gcstring GetVersionGuid() = 0;

protected:
    ~IDeviceInfo() = default;
};

} // namespace GENAPI_NAMESPACE
