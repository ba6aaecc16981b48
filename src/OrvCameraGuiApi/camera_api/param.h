// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>
#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <cstdint>

namespace OrvGenParam {

class ParamEventSink;

/** The results of Param::GetType(). Only the codes of integers and enumerations are the same in every library. */
enum ParamType : std::int32_t {
    ParamTypeInt = 1,
    ParamTypeBoolean = 2,
    ParamTypeCommand = 3,
    ParamTypeEnum = 4,
    ParamTypeString = 5,
    ParamTypeEnumEntry = 6
};

/**
 * A feature of a camera or an interface. The virtual base of all parameter types; a dynamic_cast converts it to its
 * type.
 *
 * Owned by its Array, with the same lifetime. Nothing throws. A getter that fails returns 0, false or null and stores
 * the reason in its last argument, which may be null; success stores 0 there. A setter that fails leaves the value
 * unchanged. All operations may be called from any thread; a call may wait for another thread and for the device.
 */
class ORV_CAMERA_API Param
{
protected:
    virtual ~Param() = default;

public:
    /** A ParamType. */
    virtual std::int32_t GetType() = 0;

    /** The feature's name, UTF-8; stays the same for the life of the object. */
    virtual const char *GetName() = 0;

    /** Whether the feature exists and can be used now. */
    virtual bool IsAvailable() = 0;

    /** Whether the value may be set now. */
    virtual bool IsWritable() = 0;

    /** Whether the value may be read now. */
    virtual bool IsReadable() = 0;

    /**
     * Tells \a sink about changes from now on. A sink is registered once and told once, however often it asks. It
     * stays its owner's, who unregisters it before it goes; null is an invalid argument.
     */
    virtual OrvCamErr RegisterEvent(ParamEventSink *sink) = 0;

    /**
     * Tells \a sink nothing more: no call to it begins after this has returned, also when it is called during a
     * delivery. A sink that is not registered is no error.
     */
    virtual OrvCamErr UnregisterEvent(ParamEventSink *sink) = 0;
};

} // namespace OrvGenParam
