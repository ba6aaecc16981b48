// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "framesource.h"

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <GenApi/INodeMap.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/**
 * \file
 * The seams between the camera access contract and a transport. A transport implements Backend and the classes that it
 * hands out. System, Interface, DeviceInfo and Device turn them into objects for applications.
 *
 * Every function may be called from any thread, and several at once.
 */
namespace OrvCameraApi {

/** A text of an object; without a value, applications get a null pointer. */
using Text = std::optional<std::string>;

/** The text as applications get it: valid as long as \a text. */
inline const char *textOf(const Text &text)
{
    return text ? text->c_str() : nullptr;
}

struct InterfaceTexts
{
    Text id; ///< Latin-1, as all identifiers; the other texts are UTF-8
    Text description;
    Text version;
};

struct DeviceTexts
{
    Text id;
    Text vendor;
    Text model;
    Text displayName;
    Text userDefinedName;
    Text serialNumber;
    Text version;
};

/** IPv4; the first dotted part is the most significant byte. */
struct IpConfiguration
{
    std::uint32_t address = 0;
    std::uint32_t mask = 0;
    std::uint32_t gateway = 0;
};

/** \a address as four decimal octets joined with ".". */
inline std::string dotted(std::uint32_t address)
{
    std::string text = std::to_string(address >> 24);
    for (const unsigned shift : {16U, 8U, 0U})
        text += '.' + std::to_string(address >> shift & 0xFF);
    return text;
}

/** The answer to a request for parameters. A backend may give them and report an error all the same. */
struct ParametersAnswer
{
    bool areGiven = true;
    OrvCamErr err = OrvCamErr_Ok;
};

/** Something that has features: an interface, or a device that is open. */
class FeatureOwner
{
public:
    virtual ~FeatureOwner() = default;

    /** Makes a node map with a connected port, once. It is destroyed before this object. May throw. */
    virtual std::shared_ptr<GenApi::INodeMap> makeNodeMap() = 0;

    /** Whether the features can be reached. While they cannot, parameters fail without touching the node map. */
    virtual bool isConnected() const = 0;

    /** Asked on every request, before the node map is made. */
    virtual ParametersAnswer parametersAnswer() const
    {
        return isConnected() ? ParametersAnswer{} : ParametersAnswer{false, OrvCamErr_NoDevice};
    }
};

/** Follows the connection of a device that is open. */
class ConnectionListener
{
public:
    virtual ~ConnectionListener() = default;

    /** The device is about to be reachable again. Drops all kept values, before anyone can read. */
    virtual void prepareReturn() = 0;

    /** Calls the application's callbacks for OrvCam::EventDeviceConnected or OrvCam::EventDeviceDisconnected. */
    virtual void raise(std::uint32_t eventId) = 0;
};

/** How far a device is on its way to its features, or that it was lost. */
enum class OpeningStep { Connecting, Description, Features, Connected, Lost };

struct OpeningProgress
{
    OpeningStep step = OpeningStep::Connected;
    std::string failure; ///< why the last attempt to open the device has failed; empty otherwise
};

/** A device that is open; closed by its destructor. */
class Connection : public FeatureOwner
{
public:
    virtual OpeningProgress progress() const
    {
        return {isConnected() ? OpeningStep::Connected : OpeningStep::Lost, {}};
    }

    /** Called once. A listener that has expired is not called. */
    virtual void setListener(std::weak_ptr<ConnectionListener> listener) = 0;

    /** Whether openFrames() can succeed at all. */
    virtual bool givesFrames() const { return false; }

    /**
     * Never null; may throw. Each camera has one at a time. It is destroyed before this object. One that is ending is
     * waited for, as long as \a isWanted says.
     */
    virtual std::unique_ptr<FrameSource> openFrames(const std::function<bool()> & /*isWanted*/)
    {
        throw std::runtime_error("This device gives no pictures");
    }
};

/** A device that was found on an interface. */
class BackendDevice
{
public:
    virtual ~BackendDevice() = default;

    /** Never changes. */
    virtual const DeviceTexts &texts() const = 0;

    virtual std::int32_t accessStatus() const = 0;

    /** Fails where there is no IP, and when the device cannot be reached. */
    virtual OrvCamErr readIpConfiguration(IpConfiguration &configuration) const = 0;
    virtual OrvCamErr forceIp(const IpConfiguration &configuration) = 0;

    /** Null and the reason in \a err when the device cannot be opened. May throw. */
    virtual std::unique_ptr<Connection> open(std::int32_t accessMode, OrvCamErr &err) = 0;
};

/** A transport interface of the host. Its features choose a device by its place among devices(). */
class BackendInterface : public FeatureOwner
{
public:
    using Devices = std::vector<std::shared_ptr<BackendDevice>>;

    /** Never changes. */
    virtual const InterfaceTexts &texts() const = 0;

    /** Never changes. */
    virtual std::int32_t type() const = 0;

    /**
     * The devices that are known now; without a value, applications get no list. The same device is the same object as
     * long as anyone holds it.
     */
    virtual std::optional<Devices> devices() const = 0;

    /** Looks for devices for at most \a timeout ms. \a changed: whether others are known than after the last call. */
    virtual OrvCamErr reEnumerate(bool &changed, std::uint32_t timeout) = 0;
};

/** A transport. Outlives the systems that list it. */
class Backend
{
public:
    using Interfaces = std::vector<std::shared_ptr<BackendInterface>>;

    virtual ~Backend() = default;

    /** Whether a new system lists this transport. */
    virtual bool isAvailable() const = 0;

    /** As for BackendInterface::devices(). */
    virtual std::optional<Interfaces> interfaces() const = 0;
};

} // namespace OrvCameraApi
