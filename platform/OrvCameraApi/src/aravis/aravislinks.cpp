// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Aravis finds USB cameras, opens cameras and moves their bytes. Its headers and Qt's macros do not go together.
#include "aravislinks.h"

#include "aravisframes.h"
#include "aravispointers.h"
#include "wirespan.h"

#include <arv.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <utility>

namespace OrvCameraApi {

namespace {

constexpr std::uint64_t largestAccess = 1 << 20;

/** Opening a camera parses its description, with variables that all share. */
std::mutex &openingMutex()
{
    static std::mutex mutex;
    return mutex;
}

/** Listing and opening USB cameras use the same tables, which nobody else guards. */
std::mutex &usbMutex()
{
    static std::mutex mutex;
    return mutex;
}

/** What both kinds of cameras have in common. */
class AravisLink : public CameraLink
{
public:
    AravisLink(DevicePointer device, IsWanted isWanted)
        : m_device(std::move(device))
        , m_isWanted(std::move(isWanted))
    {
        m_lost = g_signal_connect(m_device.get(), "control-lost", G_CALLBACK(controlLost), &m_isLost);
    }
    ~AravisLink() override { g_signal_handler_disconnect(m_device.get(), m_lost); }

    std::string description() override
    {
        std::size_t size = 0;
        const char *const xml = arv_device_get_genicam_xml(m_device.get(), &size);
        if (!xml)
            throw LinkError(LinkError::Kind::Failed, "The camera has no description");
        return std::string(xml, size);
    }

    bool isReadOnly() const override { return false; }
    bool isAlive() override { return !m_isLost; }

    std::unique_ptr<FrameSource> openFrames() override
    {
        return std::make_unique<AravisFrames>(DevicePointer(ARV_DEVICE(g_object_ref(device()))));
    }

protected:
    ArvDevice *device() const { return m_device.get(); }

    /** In pieces, as between any two packets the caller may give up. */
    void readMemory(std::uint64_t address, std::uint32_t length, void *buffer) const
    {
        for (std::uint32_t done = 0; done < length; done += PieceLength) {
            requireWanted();
            Failure failure;
            arv_device_read_memory(device(), address + done, std::min(length - done, PieceLength),
                                   static_cast<char *>(buffer) + done, &failure.error);
            failure.check();
        }
    }

    void writeMemory(std::uint64_t address, std::uint32_t length, const void *buffer) const
    {
        for (std::uint32_t done = 0; done < length; done += PieceLength) {
            requireWanted();
            Failure failure;
            arv_device_write_memory(device(), address + done, std::min(length - done, PieceLength),
                                    static_cast<char *>(const_cast<void *>(buffer)) + done, &failure.error);
            failure.check();
        }
    }

    /** Nothing new is written after its writer has been told that it is not; Aravis may repeat a packet for 2.5 s. */
    void requireWanted() const { OrvCameraApi::requireWanted(m_isWanted); }

    static void checkLength(std::uint64_t length)
    {
        if (length > largestAccess)
            throw LinkError(LinkError::Kind::Failed, "The register is too long");
    }

private:
    static constexpr std::uint32_t PieceLength = 512; ///< fits into one packet of every transport

    static void controlLost(ArvDevice *, std::atomic<bool> *isLost) { *isLost = true; }

    const DevicePointer m_device;
    const IsWanted m_isWanted;
    std::atomic<bool> m_isLost{false}; ///< written by the thread of Aravis
    gulong m_lost = 0;
};

class GigeLink final : public AravisLink
{
public:
    GigeLink(DevicePointer device, bool isReadOnly, IsWanted isWanted)
        : AravisLink(std::move(device), std::move(isWanted))
        , m_isReadOnly(isReadOnly)
    {
    }

    bool isReadOnly() const override { return m_isReadOnly; }
    void read(void *buffer, std::uint64_t address, std::uint32_t length) override;
    void write(const void *buffer, std::uint64_t address, std::uint32_t length) override;

    bool isAlive() override
    {
        return m_isReadOnly || (AravisLink::isAlive() && arv_gv_device_is_controller(ARV_GV_DEVICE(device())));
    }

private:
    void read(WireSpan &span) const;

    const bool m_isReadOnly;
};

void GigeLink::read(WireSpan &span) const
{
    if (span.bytes.size() != 4)
        return readMemory(span.begin, std::uint32_t(span.bytes.size()), span.bytes.data());
    // Not all cameras give single registers as memory.
    Failure failure;
    guint32 value = 0;
    arv_device_read_register(device(), span.begin, &value, &failure.error);
    failure.check();
    value = g_htonl(value);
    std::memcpy(span.bytes.data(), &value, 4);
}

void GigeLink::read(void *buffer, std::uint64_t address, std::uint32_t length)
{
    checkLength(length);
    WireSpan span(address, length);
    read(span);
    std::memcpy(buffer, span.bytes.data() + span.offset, length);
}

void GigeLink::write(const void *buffer, std::uint64_t address, std::uint32_t length)
{
    checkLength(length);
    WireSpan span(address, length);
    if (span.bytes.size() != length)
        read(span); // the bytes around it stay
    std::memcpy(span.bytes.data() + span.offset, buffer, length);
    if (span.bytes.size() != 4)
        return writeMemory(span.begin, std::uint32_t(span.bytes.size()), span.bytes.data());
    requireWanted();
    Failure failure;
    guint32 value = 0;
    std::memcpy(&value, span.bytes.data(), 4);
    arv_device_write_register(device(), span.begin, g_ntohl(value), &failure.error);
    failure.check();
}

class UsbLink final : public AravisLink
{
public:
    using AravisLink::AravisLink;

    void read(void *buffer, std::uint64_t address, std::uint32_t length) override
    {
        checkLength(length);
        readMemory(address, length, buffer);
    }
    void write(const void *buffer, std::uint64_t address, std::uint32_t length) override
    {
        checkLength(length);
        writeMemory(address, length, buffer);
    }

    bool isAlive() override
    {
        if (!AravisLink::isAlive())
            return false;
        Failure failure;
        std::uint32_t version = 0; // the first register of every camera
        return arv_device_read_memory(device(), 0, sizeof version, &version, &failure.error);
    }
};

std::unique_ptr<GInetAddress, Unref> toAravis(std::uint32_t address)
{
    const guint32 bytes = g_htonl(address);
    return std::unique_ptr<GInetAddress, Unref>(
        g_inet_address_new_from_bytes(reinterpret_cast<const guint8 *>(&bytes), G_SOCKET_FAMILY_IPV4));
}

std::string textOf(const char *text)
{
    return text ? text : "";
}

} // namespace

} // namespace OrvCameraApi

using namespace OrvCameraApi;

CameraLink *orvAravisOpenGige(std::uint32_t adapter, std::uint32_t address, bool isReadOnly, const IsWanted &isWanted)
{
    Failure failure;
    const std::lock_guard<std::mutex> lock(openingMutex());
    DevicePointer opened(arv_gv_device_new(toAravis(adapter).get(), toAravis(address).get(), &failure.error));
    if (!opened) {
        failure.check();
        throw LinkError(LinkError::Kind::Failed, failure.text());
    }
    // It asks for control in any case, and the other program may have let go meanwhile.
    const bool controls = arv_gv_device_is_controller(ARV_GV_DEVICE(opened.get()));
    if (!isReadOnly && !controls)
        throw LinkError(LinkError::Kind::Denied, "Another program has taken the camera");
    return new GigeLink(std::move(opened), !controls, isWanted);
}

void orvAravisListUsb(std::vector<UsbCamera> &cameras)
{
    const std::lock_guard<std::mutex> lock(usbMutex());
    ArvInterface *const usb = arv_uv_interface_get_instance();
    arv_interface_update_device_list(usb);
    for (unsigned i = 0; i < arv_interface_get_n_devices(usb); ++i)
        cameras.push_back({textOf(arv_interface_get_device_id(usb, i)), textOf(arv_interface_get_device_vendor(usb, i)),
                           textOf(arv_interface_get_device_model(usb, i)),
                           textOf(arv_interface_get_device_serial_nbr(usb, i))});
}

CameraLink *orvAravisOpenUsb(const char *id, const IsWanted &isWanted)
{
    Failure failure;
    const std::scoped_lock lock(usbMutex(), openingMutex());
    DevicePointer opened(arv_interface_open_device(arv_uv_interface_get_instance(), id, &failure.error));
    if (!opened)
        throw LinkError(LinkError::Kind::Failed, "The camera cannot be opened: " + failure.text());
    return new UsbLink(std::move(opened), isWanted);
}
