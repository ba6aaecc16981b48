// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "camerasource.h"

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <Base/GCException.h>
#include <OrvCameraApi/transports.h>
#include <OrvGenApi/memoryport.h>
#include <OrvGenApi/nodemap.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <exception>
#include <vector>

namespace {

/** Objects of the camera access library are returned by Release(). */
struct Releaser
{
    template <typename T>
    void operator()(T *object) const
    {
        object->Release();
    }
};

template <typename T>
using Released = std::unique_ptr<T, Releaser>;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CameraSource)
};

[[noreturn]] void fail(const QString &message)
{
    throw CameraSourceError{message.simplified()};
}

class Description : public CameraSource
{
public:
    explicit Description(const QString &path)
        : m_nodeMap(OrvGenApi::NodeMap::fromFile(QFile::encodeName(path).toStdString()))
    {
        m_nodeMap->connect(&m_memory);
    }

    GenApi::INodeMap *nodeMap() const override { return m_nodeMap.get(); }

    QString name() const override
    {
        const QString vendor = QString::fromStdString(m_nodeMap->vendorName());
        return (vendor + QLatin1Char(' ') + QString::fromStdString(m_nodeMap->modelName())).simplified();
    }

private:
    OrvGenApi::MemoryPort m_memory;
    const std::unique_ptr<OrvGenApi::NodeMap> m_nodeMap;
};

class Camera : public CameraSource
{
public:
    Camera(std::shared_ptr<OrvCam::System> system, OrvCam::DeviceInfo *info)
        : m_system(std::move(system))
        , m_name(QString::fromUtf8(info->GetDisplayName()))
        , m_id(QString::fromLatin1(info->GetID()))
    {
        OrvCamErr error = OrvCamErr_Ok;
        m_device.reset(OrvCam_CreateDevice(info, OrvCam::DeviceAccessControl, &error));
        if (!m_device)
            failToOpen(QLatin1String(orvCamErrDescription(error)));
    }

    /** False if \a wait has given the features up. Throws if there will be none. */
    bool awaitFeatures(const WaitForFeatures &wait)
    {
        OrvCamErr error = OrvCamErr_Ok;
        OrvGenParam::Array *parameters = m_device->GetCameraParameters(&error);
        const bool isOnItsWay = OrvTransports::progressOf(*m_device).step != OrvTransports::Step::Connected;
        if (!parameters && isOnItsWay && !wait(*m_device, m_name))
            return false;
        if (!parameters)
            parameters = m_device->GetCameraParameters(&error);
        m_nodeMap = parameters ? parameters->GetNodeMap() : nullptr;
        if (!m_nodeMap)
            failToOpen(QLatin1String(orvCamErrDescription(error)));
        return true;
    }

    [[noreturn]] void failToOpen(const QString &why) const
    {
        fail(Text::tr("Cannot open the camera '%1': %2.").arg(m_id, why));
    }

    OrvCam::Device *device() const override { return m_device.get(); }
    GenApi::INodeMap *nodeMap() const override { return m_nodeMap; }
    QString name() const override { return m_name; }
    QString id() const override { return m_id; }

private:
    const std::shared_ptr<OrvCam::System> m_system;
    const QString m_name;
    const QString m_id;
    Released<OrvCam::Device> m_device;
    GenApi::INodeMap *m_nodeMap = nullptr;
};

/** Appends the devices that are found on \a interface now. */
void collectDevices(OrvCam::Interface &interface, std::vector<OrvCam::DeviceInfo *> &devices)
{
    constexpr std::uint32_t timeout = 200;
    bool changed = false;
    interface.ReEnumerateDevices(&changed, timeout);
    const Released<OrvCam::DeviceInfoList> list(interface.GetDeviceInfoList());
    if (!list)
        return;
    for (OrvCam::DeviceInfo *info = list->GetFirst(); info; info = list->GetNext())
        devices.push_back(info);
}

std::vector<OrvCam::DeviceInfo *> allDevices(OrvCam::System &system)
{
    std::vector<OrvCam::DeviceInfo *> devices;
    const Released<OrvCam::InterfaceList> list(system.GetInterfaceList(OrvCam::AllInterfaceTypes));
    if (!list)
        return devices;
    for (OrvCam::Interface *interface = list->GetFirst(); interface; interface = list->GetNext())
        collectDevices(*interface, devices);
    return devices;
}

QStringList idsOf(const std::vector<OrvCam::DeviceInfo *> &devices)
{
    QStringList ids;
    for (OrvCam::DeviceInfo *info : devices)
        ids.append(QString::fromLatin1(info->GetID()));
    return ids;
}

constexpr int openingTime = 10000; // milliseconds
constexpr int lookingTime = 3000; // milliseconds

/** Tries \a attempt again and again for that long. */
template <typename Attempt>
bool tryFor(int milliseconds, const GivesUp &givesUp, const Attempt &attempt)
{
    QElapsedTimer clock;
    clock.start();
    bool isDone = attempt();
    while (!isDone && clock.elapsed() < milliseconds && !(givesUp && givesUp())) {
        QThread::msleep(20);
        isDone = attempt();
    }
    return isDone;
}

bool isSelectable(OrvCam::DeviceInfo *info)
{
    const std::int32_t status = info->GetAccessStatus();
    return status != OrvCam::AccessStatusNoAccess && status != OrvCam::AccessStatusIpSubnetMismatch;
}

/** Null if there is none. */
OrvCam::DeviceInfo *firstSelectable(const std::vector<OrvCam::DeviceInfo *> &devices)
{
    OrvCam::DeviceInfo *first = nullptr;
    for (OrvCam::DeviceInfo *info : devices) {
        if (info->GetAccessStatus() == OrvCam::AccessStatusReadWrite)
            return info;
        if (!first && isSelectable(info))
            first = info;
    }
    return first;
}

OrvCam::DeviceInfo *deviceWith(const QString &id, const std::vector<OrvCam::DeviceInfo *> &devices)
{
    const auto found = std::find_if(devices.begin(), devices.end(), [&id](OrvCam::DeviceInfo *info) {
        return QString::fromLatin1(info->GetID()) == id;
    });
    return found == devices.end() ? nullptr : *found;
}

void requireOnlyOne(const std::vector<OrvCam::DeviceInfo *> &devices)
{
    QStringList ids;
    for (OrvCam::DeviceInfo *info : devices) {
        if (isSelectable(info))
            ids.append(QString::fromLatin1(info->GetID()));
    }
    ids.removeDuplicates(); // it may be reached in two ways
    if (ids.size() > 1)
        fail(Text::tr("There are several cameras: %1; '--camera' names one.").arg(ids.join(QLatin1String(", "))));
}

/** Real cameras are found a moment after somebody has begun to look. */
int timeToLook()
{
    return OrvTransports::used() == OrvTransports::Cameras::Simulated ? 0 : lookingTime;
}

} // namespace

std::unique_ptr<CameraSource> openDescription(const QString &path)
{
    try {
        return std::make_unique<Description>(path);
    } catch (const GenICam::GenericException &e) {
        fail(QString::fromUtf8(e.GetDescription()));
    } catch (const std::exception &e) { // a file too large for the memory
        fail(Text::tr("%1: %2").arg(path, QString::fromLocal8Bit(e.what())));
    }
}

std::shared_ptr<OrvCam::System> cameraSystem()
{
    OrvCam::System *const system = OrvCam_GetSystem();
    if (!system)
        fail(Text::tr("There is no camera system."));
    return {system, Releaser()};
}

std::unique_ptr<CameraSource> openCamera(const std::shared_ptr<OrvCam::System> &system, OrvCam::DeviceInfo *info,
                                         const WaitForFeatures &wait)
{
    if (!info)
        fail(Text::tr("There is no camera that can be opened."));
    auto camera = std::make_unique<Camera>(system, info);
    if (!camera->awaitFeatures(wait))
        return nullptr;
    return camera;
}

QVector<ListedCamera> listCameras(const GivesUp &givesUp)
{
    const std::shared_ptr<OrvCam::System> system = cameraSystem();
    QVector<ListedCamera> cameras;
    tryFor(timeToLook(), givesUp, [&] {
        cameras.clear();
        for (OrvCam::DeviceInfo *info : allDevices(*system))
            cameras.append({QString::fromLatin1(info->GetID()), QString::fromUtf8(info->GetDisplayName()).simplified(),
                            info->GetAccessStatus()});
        return false; // there may be more
    });
    return cameras;
}

std::unique_ptr<CameraSource> openCamera(const QString &id, const GivesUp &givesUp, Unnamed unnamed)
{
    const std::shared_ptr<OrvCam::System> system = cameraSystem();
    std::vector<OrvCam::DeviceInfo *> devices;
    OrvCam::DeviceInfo *wanted = nullptr;
    const bool mustBeOnly =
        id.isEmpty() && unnamed == Unnamed::Only && OrvTransports::used() != OrvTransports::Cameras::Simulated;
    const auto find = [&] {
        devices = allDevices(*system);
        wanted = id.isEmpty() ? firstSelectable(devices) : deviceWith(id, devices);
        return wanted && !mustBeOnly; // else there may be more
    };
    tryFor(timeToLook(), givesUp, find);
    if (mustBeOnly)
        requireOnlyOne(devices);
    if (!wanted && !id.isEmpty())
        fail(Text::tr("There is no camera '%1'; there are: %2.").arg(id, idsOf(devices).join(QLatin1String(", "))));
    return openCamera(system, wanted, [&givesUp](OrvCam::Device &device, const QString &name) {
        if (tryFor(openingTime, givesUp, [&device] { return device.GetCameraParameters(nullptr) != nullptr; }))
            return true;
        const QString why = QString::fromStdString(OrvTransports::progressOf(device).failure);
        fail(Text::tr("Cannot open the camera '%1': %2.")
                 .arg(name, why.isEmpty() ? Text::tr("it takes too long") : why));
    });
}
