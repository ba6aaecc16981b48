#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>
#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <cstdint>

namespace OrvGenParam {

class ParamEventSink;

/** What Param::GetType() answers. Only the codes of integers and enumerations are the same in every library. */
enum ParamType : std::int32_t {
    ParamTypeInt = 1,
    ParamTypeBoolean = 2,
    ParamTypeCommand = 3,
    ParamTypeEnum = 4,
    ParamTypeString = 5,
    ParamTypeEnumEntry = 6
};

/**
 * One feature of a camera or an interface: what all kinds have in common. A virtual base of every kind; a dynamic_cast
 * leads back to the kind.
 *
 * Belongs to its Array and lives as long. Nothing throws: a getter that fails answers 0, false or null and stores the
 * reason in its last argument, which may be null; success stores 0 there. A setter that fails leaves the value as it
 * was. Every operation may be called from any thread; a call may wait for one on another thread, and for the device.
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
