#include "gigelink.h"

#include "gvcpclient.h"
#include "netadapter.h"

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

/** Makes sure that the description is in the camera. Gives its text if it is in an archive. */
std::string checkDescription(GvcpClient &client)
{
    const std::optional<Gvcp::Packet> url = client.readMemory(Gvcp::FirstUrl, Gvcp::urlLength);
    if (!url)
        throwSilent();
    const std::optional<Gvcp::DescriptionFile> file = Gvcp::localFileIn(textIn(*url));
    if (!file)
        throw LinkError(LinkError::Kind::Failed,
                        "The description is not in the camera and is not fetched from elsewhere: \"" + textIn(*url)
                            + '"');
    if (!file->isArchive())
        return {};
    const std::optional<Gvcp::Packet> archive = client.readMemory(file->address, file->length);
    if (!archive)
        throwSilent();
    return OrvGenApi::descriptionInZip(std::string(archive->begin(), archive->end()), file->name);
}

/** Asks the camera itself whether it is still there, which libraries below notice late. */
class GigeLink final : public CameraLink
{
public:
    GigeLink(std::unique_ptr<CameraLink> transport, std::uint32_t adapter, const Endpoint &device, std::string unpacked)
        : m_transport(std::move(transport))
        , m_client(adapter, device)
        , m_unpacked(std::move(unpacked))
    {
    }

    std::string description() override { return m_unpacked.empty() ? m_transport->description() : m_unpacked; }
    bool isReadOnly() const override { return m_transport->isReadOnly(); }
    void read(void *buffer, std::uint64_t address, std::uint32_t length) override
    {
        m_transport->read(buffer, address, length);
    }
    void write(const void *buffer, std::uint64_t address, std::uint32_t length) override
    {
        m_transport->write(buffer, address, length);
    }
    bool isAlive() override
    {
        const std::optional<std::vector<std::uint32_t>> privilege = m_client.readRegisters({Gvcp::ControlPrivilege});
        // Gone, restarted, or free for this program by now.
        return privilege && privilege->front() != 0 && m_transport->isAlive();
    }

private:
    const std::unique_ptr<CameraLink> m_transport;
    GvcpClient m_client;
    const std::string m_unpacked; ///< the description, if the camera has it in an archive
};

} // namespace

std::unique_ptr<CameraLink> openGigeCamera(std::uint32_t adapter, const Endpoint &device, const OpenTransport &open)
{
    GvcpClient client(adapter, device);
    const bool isReadOnly = isTaken(client);
    std::string unpacked = checkDescription(client);
    return std::make_unique<GigeLink>(open(adapter, device.address, isReadOnly), adapter, device, std::move(unpacked));
}

} // namespace OrvCameraApi
