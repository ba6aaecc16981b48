// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#define ORV_CAMERAAPI_EXPORT __attribute__((visibility("default")))

/**
 * The controls of the simulated cameras behind OrvCam_GetSystem(). They stand for cables and tools, and give tests
 * insight.
 *
 * The simulation exists from the start and outlives all systems and devices: a camera keeps its registers while nobody
 * has it open. Time plays no part in it. Temperatures drift and commands end by being read.
 *
 * Interfaces and devices are addressed by their control name. It is unique and may differ from the identifier that the
 * application sees; in the default system both are the same. With an unknown name a function does nothing and returns
 * false, or 0 for a count. Every function may be called from any thread.
 */
namespace OrvSim {

/** A text of a camera object; without a value, applications get a null pointer. */
using Text = std::optional<std::string>;

/** An IPv4 configuration; the first dotted part is the most significant byte. */
struct Network
{
    std::uint32_t address = 0;
    std::uint32_t mask = 0;
    std::uint32_t gateway = 0;
};

/** A transport interface to simulate. */
struct InterfaceSpec
{
    std::string name; ///< the control name
    Text id; ///< Latin-1
    Text description;
    Text version;
    std::int32_t type = OrvCam::InterfaceTypeGigEVision; ///< any code is allowed
    std::uint64_t macAddress = 0; ///< the low 48 bits
    Network network;
};

/** A camera to simulate. */
struct DeviceSpec
{
    std::string name; ///< the control name
    Text id; ///< Latin-1
    Text vendor;
    Text model;
    Text displayName;
    Text userDefinedName;
    Text serialNumber;
    Text version;
    std::int32_t accessStatus = OrvCam::AccessStatusReadWrite; ///< any code is allowed
    std::uint32_t usbVersion = 0; ///< binary-coded, 0x0300 is USB 3.0; 0 where there is no USB
    std::uint64_t macAddress = 0; ///< the low 48 bits
    Network network;

    /** GenICam XML. Its port "Device" leads to a memory that is 0 until it is written. */
    std::string description;

    /**
     * The camera's actions when it gets power: one statement a line, "#" begins a comment line. Registers are named by
     * their nodes.
     *
     *     set NODE VALUE              writes the register, in the text form of its node
     *     drift NODE LOW HIGH STEP    each read moves the unsigned integer by STEP, to and fro between the ends
     *     clear NODE VALUE READS      VALUE, once written, is read READS times and then becomes 0
     *     fail-read NODE              reading fails, always
     *     fail-write NODE             writing fails, always
     */
    std::string powerUp;
};

/** \name Ready-made cameras; name and identifier are empty. @{ */

/** A color camera with two frame settings. It has every feature that a dialog or the configuration window names. */
ORV_CAMERAAPI_EXPORT DeviceSpec twoFrameCamera();

/** A monochrome camera with one frame setting. */
ORV_CAMERAAPI_EXPORT DeviceSpec monochromeCamera();

/** A camera with any description. Its texts are the names in the description, if that can be read. */
ORV_CAMERAAPI_EXPORT DeviceSpec cameraFromText(const std::string &description);

/** The same from a file; throws GenICam::RuntimeException when the file cannot be read. */
ORV_CAMERAAPI_EXPORT DeviceSpec cameraFromFile(const std::string &path);
/** @} */

/** \name Plugging @{ */

/**
 * Restores the default system, ends all faults and stalls and joins the event thread. Must not be called from a device
 * event. Open devices and device descriptions stay valid, as unplugged ones, without an event.
 *
 * The default system: "ORV-ETH-0" (GigE Vision) with "ORV-GIGE-0001", a two-frame camera, and "ORV-GIGE-0002", the same
 * model in a foreign subnet; "ORV-XHCI-0" (USB3 Vision) with "ORV-USB3-0001", a monochrome camera on a USB 2 port;
 * "ORV-CL-0" (CameraLink) without a device.
 */
ORV_CAMERAAPI_EXPORT void reset();

/** Like reset(), but leaves no interface. */
ORV_CAMERAAPI_EXPORT void clear();

/** Adds an interface after the others; false when the control name is empty or in use. */
ORV_CAMERAAPI_EXPORT bool addInterface(const InterfaceSpec &spec);

/**
 * Adds a device after the others of the interface. False when the control name is empty or in use, when there is no
 * such interface, or when the description or a statement cannot be used; \a error, which may be null, then gets the
 * reason.
 */
ORV_CAMERAAPI_EXPORT bool addDevice(const std::string &interfaceName, const DeviceSpec &spec,
                                    std::string *error = nullptr);

/** Unplugs an interface or a device and forgets it. Its name may be used again, for another one. */
ORV_CAMERAAPI_EXPORT bool remove(const std::string &name);

/**
 * Unplugs an interface or a device. It is no longer listed. Open devices raise OrvCam::EventDeviceDisconnected and
 * their operations fail.
 */
ORV_CAMERAAPI_EXPORT bool unplug(const std::string &name);

/**
 * Plugs in again, into the same place of the list. Open devices raise OrvCam::EventDeviceConnected. Has no effect on
 * an interface or a device that is plugged in.
 */
ORV_CAMERAAPI_EXPORT bool replug(const std::string &name);

/** Exchanges the places of two devices of one interface. */
ORV_CAMERAAPI_EXPORT bool swapDevices(const std::string &first, const std::string &second);

/** The control names of all interfaces, plugged in or not, in their order. */
ORV_CAMERAAPI_EXPORT std::vector<std::string> interfaceNames();

/** The control names of all devices of an interface, plugged in or not, in their order. */
ORV_CAMERAAPI_EXPORT std::vector<std::string> deviceNames(const std::string &interfaceName);

/** Whether an interface or a device is plugged in. */
ORV_CAMERAAPI_EXPORT bool isPluggedIn(const std::string &name);
/** @} */

/** \name How objects behave @{ */

/** The results of list operations. */
enum class Lists {
    Normal, ///< a list; null when the system has no interface at all
    Empty, ///< a list without entries
    Null ///< null
};

/** The results of requests for parameters. */
enum class Parameters {
    Normal, ///< the parameters
    Null, ///< null without an error
    Error, ///< null and OrvCamErr_GenICamTreeError
    ArrayWithError ///< the parameters, but also OrvCamErr_GenICamTreeError
};

/** Whether OrvCam_GetSystem() returns a system. */
ORV_CAMERAAPI_EXPORT void setSystemAvailable(bool available);

ORV_CAMERAAPI_EXPORT void setInterfaceLists(Lists lists);
ORV_CAMERAAPI_EXPORT bool setDeviceLists(const std::string &interfaceName, Lists lists);

/** For an interface or a device; takes effect on every call that asks for parameters. */
ORV_CAMERAAPI_EXPORT bool setParameters(const std::string &name, Parameters parameters);

/** Any code is allowed. Devices that are open stay open. */
ORV_CAMERAAPI_EXPORT bool setAccessStatus(const std::string &deviceName, std::int32_t status);

/** Makes OrvCam_CreateDevice() of this device fail with \a err; OrvCamErr_Ok ends that. */
ORV_CAMERAAPI_EXPORT bool refuseToOpen(const std::string &deviceName, OrvCamErr err);

/** Makes DeviceInfo::ForceIP() of this device fail with \a err; OrvCamErr_Ok ends that. */
ORV_CAMERAAPI_EXPORT bool refuseForceIp(const std::string &deviceName, OrvCamErr err);

/** Raises device events on a thread of the library instead of the thread that (un)plugs. */
ORV_CAMERAAPI_EXPORT void setEventsFromOtherThread(bool other);

/** Waits until all events so far have been delivered. Must not be called from an event. */
ORV_CAMERAAPI_EXPORT void waitForEvents();
/** @} */

/** \name Calls that hang @{ */

/** Calls that can be made to hang. They hold no lock while they do. */
enum class Call { ReEnumerateDevices, ForceIp };

/** Every such call waits from now on, until release(). */
ORV_CAMERAAPI_EXPORT void stall(Call call);

/** Ends a stall: waiting calls go on. */
ORV_CAMERAAPI_EXPORT void release(Call call);

/** Waits until a call hangs there; false when none does within \a timeout. */
ORV_CAMERAAPI_EXPORT bool waitUntilStalled(Call call, std::chrono::milliseconds timeout);
/** @} */

/** \name Registers of an interface or a device @{ */

/** The faults of a register. A read or write that hangs holds the lock of its node map, as with a real camera. */
enum class Fault { FailRead, FailWrite, StallRead, StallWrite };

/**
 * Puts a fault on a register. \a node is a register node, or a feature NAME whose register node is called NAMEReg as in
 * the descriptions here. Behind a selector it is the register that is selected now. False also when there is no such
 * node.
 */
ORV_CAMERAAPI_EXPORT bool setFault(const std::string &name, const std::string &node, Fault fault);

/** Puts a fault on all accesses that touch these bytes. */
ORV_CAMERAAPI_EXPORT bool setFault(const std::string &name, std::int64_t address, std::int64_t length, Fault fault);

/** Ends all faults that were set with setFault(); accesses that hang go on. */
ORV_CAMERAAPI_EXPORT bool clearFaults(const std::string &name);

/** Waits until a read or write hangs; false when none does within \a timeout. */
ORV_CAMERAAPI_EXPORT bool waitUntilStalled(const std::string &name, std::chrono::milliseconds timeout);

/**
 * Changes a register of a device unnoticed, as a camera may. \a node is that of setFault(), \a value has the text form
 * of the node.
 */
ORV_CAMERAAPI_EXPORT bool setRegister(const std::string &deviceName, const std::string &node, const std::string &value);

/** Accesses through the port since the start or resetCounts(), one a call, failed ones included. */
ORV_CAMERAAPI_EXPORT std::uint64_t readCount(const std::string &name);
ORV_CAMERAAPI_EXPORT std::uint64_t writeCount(const std::string &name);
ORV_CAMERAAPI_EXPORT bool resetCounts(const std::string &name);
/** @} */

/** The objects that applications hold now. */
struct LiveObjects
{
    std::size_t systemReferences = 0; ///< OrvCam_GetSystem() less OrvCam::System::Release()
    std::size_t lists = 0; ///< interface and device lists
    std::size_t devices = 0; ///< devices that are open
    std::size_t eventCallbacks = 0; ///< registered device event callbacks
    std::size_t sinks = 0; ///< registered parameter sinks, each parameter on its own
    std::size_t nodeCallbacks = 0; ///< callbacks that parameters with sinks have on their nodes
};

ORV_CAMERAAPI_EXPORT LiveObjects liveObjects();

} // namespace OrvSim
