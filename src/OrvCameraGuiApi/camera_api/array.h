// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>
#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <GenApi/INodeMap.h>

#include <cstdint>

namespace OrvGenParam {

class Boolean;
class Command;
class Enum;
class Int;
class String;

/**
 * All parameters of a device or an interface, by feature name (UTF-8). The array and its parameters live as
 * long as the object that returned the array.
 *
 * A lookup returns null if the feature does not exist or is of another kind; \a err, which may be null, gets the
 * reason. A null name is an invalid argument. Every operation may be called from any thread.
 */
class ORV_CAMERA_API Array
{
protected:
    virtual ~Array() = default;

public:
    virtual Boolean *GetBoolean(const char *name, OrvCamErr *err) = 0;
    virtual Command *GetCommand(const char *name, OrvCamErr *err) = 0;
    virtual Enum *GetEnum(const char *name, OrvCamErr *err) = 0;
    virtual Int *GetInt(const char *name, OrvCamErr *err) = 0;
    virtual String *GetString(const char *name, OrvCamErr *err) = 0;

    /** The node map of the parameters; owned by the array. */
    virtual GenApi::INodeMap *GetNodeMap() = 0;

    /** Sets an integer feature by name. */
    virtual OrvCamErr SetIntegerValue(const char *name, std::int64_t value) = 0;

    /** Reads an integer feature by name; on failure returns 0 and stores the reason in \a err, which may be null. */
    virtual std::int64_t GetIntegerValue(const char *name, OrvCamErr *err) = 0;
};

} // namespace OrvGenParam
