// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "gigelink.h"

#include "gvcpreader.h"

#include <OrvGenApi/ziparchive.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace OrvCameraApi {

namespace {

/** \a bytes up to the first zero. */
std::string textIn(const Gvcp::Packet &bytes)
{
    return std::string(bytes.begin(), std::find(bytes.begin(), bytes.end(), 0));
}

/** A text of the camera for people, whatever it is made of. */
std::string shown(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char byte) { return byte < ' ' || byte > '~'; }, '?');
    return text;
}

[[noreturn]] void throwSilent()
{
    throw LinkError(LinkError::Kind::Silent, "The camera does not answer");
}

/** Whether another program controls the camera. Throws if it allows nobody else to read. */
bool isTaken(GvcpClient &client)
{
    const std::optional<Gvcp::Acknowledge> answer =
        client.request(Gvcp::readRegisters(client.nextId(), {Gvcp::ControlPrivilege}));
    if (!answer)
        throwSilent();
    const std::optional<std::vector<std::uint32_t>> privilege = Gvcp::registersIn(answer->payload, 1);
    const bool isRefused = answer->status != Gvcp::Status::Success || !privilege;
    if (!isRefused && (privilege->front() & Gvcp::ExclusiveAccess) == 0)
        return privilege->front() != 0;
    const std::optional<std::vector<std::uint32_t>> controller = client.readRegisters({Gvcp::ControllerAddress});
    const std::string who = controller && controller->front() != 0 ? " at " + dotted(controller->front()) : "";
    throw LinkError(LinkError::Kind::Denied, "Another program" + who + " has taken the camera");
}

/** Where the camera says that its description is. */
struct Source
{
    Gvcp::DescriptionFile file; ///< in the camera
    bool isOnlySource; ///< no other place is named, which a library below could turn to
};

/** Throws if the description is not in the camera. A camera has two places to name; the second one need not exist. */
Source sourceOf(GvcpClient &client)
{
    const std::optional<Gvcp::Packet> first = client.readMemory(Gvcp::FirstUrl, Gvcp::urlLength);
    if (!first)
        throwSilent();
    const std::optional<Gvcp::Packet> second = client.readMemory(Gvcp::SecondUrl, Gvcp::urlLength);
    const std::string other = second ? textIn(*second) : "";
    const std::optional<Gvcp::DescriptionFile> otherFile = Gvcp::localFileIn(other);
    if (const std::optional<Gvcp::DescriptionFile> file = Gvcp::localFileIn(textIn(*first)))
        return {*file, other.empty() || otherFile};
    if (otherFile)
        return {*otherFile, false};
    throw LinkError(LinkError::Kind::Failed,
                    "The description is not in the camera and is not fetched from elsewhere: \"" + shown(textIn(*first))
                        + '"');
}

std::string fetch(GvcpClient &client, const Gvcp::DescriptionFile &file, const IsWanted &isWanted)
{
    std::string text;
    while (text.size() < file.length) {
        requireWanted(isWanted);
        const auto count = std::uint32_t(std::min<std::size_t>(file.length - text.size(), Gvcp::mostMemory));
        const std::optional<Gvcp::Packet> bytes = client.readMemory(file.address + std::uint32_t(text.size()), count);
        if (!bytes)
            throwSilent();
        text.append(bytes->begin(), bytes->end());
    }
    return file.isArchive() ? OrvGenApi::descriptionInZip(text, file.name) : text;
}

/** Moves the bytes without any library, for cameras whose descriptions the library below cannot read. */
class GvcpTransport final : public CameraLink
{
public:
    GvcpTransport(std::uint32_t adapter, const Endpoint &device, bool isReadOnly, const Gvcp::DescriptionFile &file,
                  IsWanted isWanted)
        : m_client(adapter, device, {}, isWanted)
        , m_isReadOnly(isReadOnly)
        , m_file(file)
        , m_isWanted(std::move(isWanted))
    {
        if (!m_isReadOnly)
            require(Gvcp::writeRegister(m_client.nextId(), Gvcp::ControlPrivilege, control));
    }
    ~GvcpTransport() override
    {
        if (!m_isReadOnly)
            m_client.request(Gvcp::writeRegister(m_client.nextId(), Gvcp::ControlPrivilege, 0));
    }
    GvcpTransport(const GvcpTransport &) = delete;
    GvcpTransport &operator=(const GvcpTransport &) = delete;

    std::string description() override { return fetch(m_client, m_file, m_isWanted); }
    bool isReadOnly() const override { return m_isReadOnly; }
    void read(void *buffer, std::uint64_t address, std::uint32_t length) override;
    void write(const void *buffer, std::uint64_t address, std::uint32_t length) override;

    /** The camera drops who controls it but asks nothing for some seconds. */
    bool isAlive() override
    {
        if (m_isReadOnly)
            return true;
        const std::optional<Gvcp::Acknowledge> answer =
            m_client.request(Gvcp::writeRegister(m_client.nextId(), Gvcp::ControlPrivilege, control));
        return answer && answer->status == Gvcp::Status::Success; // nobody else may
    }

private:
    static constexpr std::uint32_t control = 2; ///< of ControlPrivilege

    void require(const Gvcp::Packet &packet) { answerTo(packet, m_client); }
    void read(WireSpan &span) { readSpan(span, m_client, m_isWanted); }

    GvcpClient m_client;
    const bool m_isReadOnly;
    const Gvcp::DescriptionFile m_file;
    const IsWanted m_isWanted;
};

void GvcpTransport::read(void *buffer, std::uint64_t address, std::uint32_t length)
{
    WireSpan span(address, length);
    read(span);
    std::copy_n(span.bytes.begin() + span.offset, length, static_cast<std::uint8_t *>(buffer));
}

void GvcpTransport::write(const void *buffer, std::uint64_t address, std::uint32_t length)
{
    WireSpan span(address, length);
    if (span.bytes.size() != length)
        read(span); // the bytes around it stay
    std::copy_n(static_cast<const std::uint8_t *>(buffer), length, span.bytes.begin() + span.offset);
    const std::uint8_t *const bytes = span.bytes.data();
    requireWanted(m_isWanted); // nothing new is written after its writer has been told that it is not
    if (span.bytes.size() == 4) {
        const std::uint32_t value =
            std::uint32_t(bytes[0]) << 24 | std::uint32_t(bytes[1]) << 16 | std::uint32_t(bytes[2]) << 8 | bytes[3];
        require(Gvcp::writeRegister(m_client.nextId(), std::uint32_t(span.begin), value));
        return;
    }
    for (std::size_t done = 0; done < span.bytes.size(); done += Gvcp::mostMemory) {
        requireWanted(m_isWanted);
        const std::size_t count = std::min(span.bytes.size() - done, Gvcp::mostMemory);
        require(Gvcp::writeMemory(m_client.nextId(), std::uint32_t(span.begin + done), bytes + done, count));
    }
}

/** Asks the camera itself whether it is still there, which libraries below notice late. */
class GigeLink final : public CameraLink
{
public:
    GigeLink(std::unique_ptr<CameraLink> transport, std::uint32_t adapter, const Endpoint &device,
             const IsWanted &isWanted, std::string unpacked)
        : m_transport(std::move(transport))
        , m_client(adapter, device, lifePatience)
        , m_reader(std::make_shared<GvcpReader>(adapter, device, isWanted))
        , m_isWanted(isWanted)
        , m_unpacked(std::move(unpacked))
    {
    }

    std::string description() override { return m_unpacked.empty() ? m_transport->description() : m_unpacked; }
    bool isReadOnly() const override { return m_transport->isReadOnly(); }
    void read(void *buffer, std::uint64_t address, std::uint32_t length) override
    {
        checkRange(address, length);
        m_transport->read(buffer, address, length);
    }
    void write(const void *buffer, std::uint64_t address, std::uint32_t length) override
    {
        checkRange(address, length);
        m_transport->write(buffer, address, length);
    }
    bool isAlive() override { return doesPrivilegeLast() && m_transport->isAlive(); }
    std::shared_ptr<DirectReader> directReader() override { return m_reader; }
    std::unique_ptr<FrameSource> openFrames() override { return m_transport->openFrames(); }

private:
    /** What somebody reads meanwhile may take the camera a while. */
    static constexpr GvcpPatience lifePatience{std::chrono::milliseconds(300), 5, std::chrono::milliseconds(1500)};

    bool doesPrivilegeLast();

    const std::unique_ptr<CameraLink> m_transport;
    GvcpClient m_client;
    const std::shared_ptr<GvcpReader> m_reader;
    const IsWanted m_isWanted;
    const std::string m_unpacked; ///< the description, if the camera has it in an archive
};

/** False if the camera is gone, restarted, or free for this program by now. */
bool GigeLink::doesPrivilegeLast()
{
    std::optional<Gvcp::Acknowledge> answer;
    do {
        answer = m_client.request(Gvcp::readRegisters(m_client.nextId(), {Gvcp::ControlPrivilege}));
    } while (!answer && m_reader->isCameraBusy() && m_isWanted());
    if (!answer)
        return false;
    if (answer->status == Gvcp::Status::AccessDenied)
        return !isReadOnly(); // it answers none but its controller, which is the one below
    const std::optional<std::vector<std::uint32_t>> privilege = Gvcp::registersIn(answer->payload, 1);
    return answer->status == Gvcp::Status::Success && privilege && privilege->front() != 0;
}

/**
 * Through the library below, unless it might fetch the description from outside the camera, or cannot read it: it knows
 * no names in capitals, for instance.
 */
std::unique_ptr<CameraLink> openTransport(std::uint32_t adapter, const Endpoint &device, bool isReadOnly,
                                          const Source &source, const IsWanted &isWanted, const OpenTransport &open)
{
    try {
        if (source.isOnlySource)
            return open(adapter, device.address, isReadOnly, isWanted);
    } catch (const LinkError &error) {
        if (error.kind() != LinkError::Kind::Failed)
            throw;
    }
    return std::make_unique<GvcpTransport>(adapter, device, isReadOnly, source.file, isWanted);
}

} // namespace

std::unique_ptr<CameraLink> openGigeCamera(std::uint32_t adapter, const Endpoint &device, const IsWanted &isWanted,
                                           const IsFetching &isFetching, const OpenTransport &open)
{
    GvcpClient client(adapter, device, {}, isWanted);
    const bool isReadOnly = isTaken(client);
    isFetching();
    const Source source = sourceOf(client);
    std::string unpacked = source.file.isArchive() ? fetch(client, source.file, isWanted) : std::string();
    return std::make_unique<GigeLink>(openTransport(adapter, device, isReadOnly, source, isWanted, open), adapter,
                                      device, isWanted, std::move(unpacked));
}

} // namespace OrvCameraApi
