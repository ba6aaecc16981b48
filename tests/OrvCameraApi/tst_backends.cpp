// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "backend.h"
#include "device.h"
#include "livecounts.h"
#include "system.h"

#include <orvtest.h>

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvGenApi/memoryport.h>
#include <OrvGenApi/nodemap.h>

#include <stdexcept>

namespace {

using namespace OrvCameraApi;

const char description[] = R"(<RegisterDescription ModelName="Small" VendorName="Somebody" SchemaMajorVersion="1"
    SchemaMinorVersion="1" SchemaSubMinorVersion="0">
  <Category Name="Root"><pFeature>Level</pFeature></Category>
  <IntReg Name="Level"><Address>0x10</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
    <Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <Port Name="Device"/>
</RegisterDescription>)";

/** A camera in plain memory. */
struct MemoryCamera final : BackendDevice
{
    class Opened final : public Connection
    {
    public:
        explicit Opened(MemoryCamera &camera)
            : m_camera(camera)
        {
        }
        std::shared_ptr<GenApi::INodeMap> makeNodeMap() override
        {
            std::shared_ptr<OrvGenApi::NodeMap> map = OrvGenApi::NodeMap::fromString(m_camera.xml);
            map->connect(&m_camera.registers);
            return map;
        }
        bool isConnected() const override { return m_camera.isThere; }
        void setListener(std::weak_ptr<ConnectionListener> observer) override { m_camera.listener = observer; }

    private:
        MemoryCamera &m_camera;
    };

    const DeviceTexts &texts() const override { return names; }
    std::int32_t accessStatus() const override { return OrvCam::AccessStatusReadWrite; }
    OrvCamErr readIpConfiguration(IpConfiguration &) const override { return OrvCamErr_InvalidState; }
    OrvCamErr forceIp(const IpConfiguration &) override { return OrvCamErr_InvalidState; }
    std::unique_ptr<Connection> open(std::int32_t accessMode, OrvCamErr &err) override
    {
        if (accessMode != OrvCam::DeviceAccessControl)
            throw std::runtime_error("The connection broke");
        err = isThere ? OrvCamErr_Ok : OrvCamErr_NoDevice;
        return isThere ? std::make_unique<Opened>(*this) : nullptr;
    }

    DeviceTexts names;
    std::string xml = description;
    bool isThere = true;
    OrvGenApi::MemoryPort registers;
    std::weak_ptr<ConnectionListener> listener;
};

/** An interface without features. */
struct MemoryInterface final : BackendInterface
{
    std::shared_ptr<GenApi::INodeMap> makeNodeMap() override { throw std::runtime_error("There are no features"); }
    bool isConnected() const override { return true; }
    const InterfaceTexts &texts() const override { return names; }
    std::int32_t type() const override { return OrvCam::InterfaceTypeUsb3Vision; }
    std::optional<Devices> devices() const override { return Devices{camera}; }
    OrvCamErr reEnumerate(bool &, std::uint32_t) override { return OrvCamErr_Ok; }

    InterfaceTexts names;
    std::shared_ptr<MemoryCamera> camera = std::make_shared<MemoryCamera>();
};

struct MemoryBackend final : Backend
{
    bool isAvailable() const override { return isThere; }
    std::optional<Interfaces> interfaces() const override { return listed; }

    bool isThere = true;
    std::shared_ptr<MemoryInterface> interface = std::make_shared<MemoryInterface>();
    std::optional<Interfaces> listed = Interfaces{interface};
};

} // namespace

/** The contract on transports other than the simulation, with nothing of the simulation linked. */
class TestBackends : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_backends = std::make_unique<std::array<MemoryBackend, 2>>();
        m_system = nullptr;
    }

    void cleanup()
    {
        if (m_system)
            m_system->Release();
        const LiveCounts &live = liveCounts();
        QCOMPARE(live.systemReferences + live.lists + live.devices + live.eventCallbacks, std::size_t(0));
        TestCase::cleanup();
    }

    void oneSystemOfSeveralTransports()
    {
        backend(1).interface->names.id = "second";
        acquire();
        const auto both = interfaces();
        QCOMPARE(both->size(), std::size_t(2));
        QVERIFY(!both->front()->GetID());
        QCOMPARE(both->back()->GetID(), "second");
        QCOMPARE(interfaces(), both); // one object for each
        QCOMPARE(interfaces(1), both);
        QCOMPARE(interfaces(2)->size(), std::size_t(0));
        backend(0).listed.reset();
        QCOMPARE(interfaces()->front(), both->back());
        backend(1).listed.reset();
        QVERIFY(!interfaces());
        m_system->Release();

        backend(0).isThere = false;
        backend(0).listed = backend(1).listed = Backend::Interfaces{backend(1).interface};
        acquire();
        QCOMPARE(interfaces()->size(), std::size_t(1));
        m_system->Release();
        backend(1).isThere = false;
        acquire();
        QVERIFY(!m_system);
    }

    void failuresOfATransport()
    {
        acquire();
        MemoryCamera &camera = *backend(0).interface->camera;
        OrvCamErr err = OrvCamErr_Ok;
        QVERIFY(!Device::open(deviceInfo(), OrvCam::DeviceAccessControl + 1, &err)); // throws
        QCOMPARE(err, OrvCamErr_GenICamGenericError);
        camera.isThere = false;
        QVERIFY(!Device::open(deviceInfo(), OrvCam::DeviceAccessControl, &err));
        QCOMPARE(err, OrvCamErr_NoDevice);
        camera.isThere = true;
        camera.xml = "<half";
        Device *const device = Device::open(deviceInfo(), OrvCam::DeviceAccessControl, &err);
        QCOMPARE(err, OrvCamErr_Ok);
        QVERIFY(!device->GetCameraParameters(&err));
        QVERIFY(err != OrvCamErr_Ok);
        camera.xml = description;
        QVERIFY(device->GetCameraParameters(&err));
        device->Release();
        QVERIFY(!interfaces()->front()->GetParameters(&err));
        QCOMPARE(err, OrvCamErr_GenICamGenericError);
    }

private:
    MemoryBackend &backend(std::size_t i) { return m_backends->at(i); }
    void acquire() { m_system = System::acquire({&backend(0), &backend(1)}); }

    /** Null when the system gives no list. */
    std::optional<std::vector<OrvCam::Interface *>> interfaces(std::uint32_t mask = OrvCam::AllInterfaceTypes);

    /** The device of the first interface. */
    DeviceInfo &deviceInfo();

    std::unique_ptr<std::array<MemoryBackend, 2>> m_backends;
    OrvCam::System *m_system = nullptr;
};

std::optional<std::vector<OrvCam::Interface *>> TestBackends::interfaces(std::uint32_t mask)
{
    OrvCam::InterfaceList *const list = m_system->GetInterfaceList(mask);
    if (!list)
        return std::nullopt;
    std::vector<OrvCam::Interface *> entries;
    for (OrvCam::Interface *entry = list->GetFirst(); entry; entry = list->GetNext())
        entries.push_back(entry);
    list->Release();
    return entries;
}

DeviceInfo &TestBackends::deviceInfo()
{
    OrvCam::DeviceInfoList *const list = interfaces()->front()->GetDeviceInfoList();
    auto *const info = dynamic_cast<DeviceInfo *>(list->GetFirst());
    list->Release();
    return *info;
}

ORV_TEST_MAIN(TestBackends)
#include "tst_backends.moc"
