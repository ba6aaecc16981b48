// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>

#include <QString>
#include <QVector>

#include <cstdint>
#include <functional>
#include <memory>

namespace OrvCam {
class Device;
class DeviceInfo;
class System;
} // namespace OrvCam

/** A node map to show, and the object that it belongs to. The node map lives as long as the source. */
class CameraSource
{
public:
    CameraSource() = default;
    virtual ~CameraSource() = default;
    CameraSource(const CameraSource &) = delete;
    CameraSource &operator=(const CameraSource &) = delete;

    /** Never null. */
    virtual GenApi::INodeMap *nodeMap() const = 0;

    /** The name for titles. */
    virtual QString name() const = 0;

    /** The identifier of the camera; empty if there is none. */
    virtual QString id() const { return {}; }

    /** The opened camera; null if there is none. */
    virtual OrvCam::Device *device() const { return nullptr; }
};

/** Thrown if a source cannot be opened; the message is one line for the user. */
struct CameraSourceError
{
    QString message;
};

/** The GenICam description in the file \a path over a memory that reads as zeros. Throws a CameraSourceError. */
std::unique_ptr<CameraSource> openDescription(const QString &path);

/** Whether somebody who waits gives it up; may be null. */
using GivesUp = std::function<bool()>;

/** Which camera is meant when none is named. */
enum class Unnamed {
    First, ///< whose access status allows it; one that no other program controls before others
    Only ///< the same, but a real camera only if there is no other one: which answers first is chance
};

/**
 * The camera of the process's camera system with the identifier \a id, opened; for an empty one \a unnamed says which.
 * Waits for a real camera. Throws a CameraSourceError, also when it is given up.
 */
std::unique_ptr<CameraSource> openCamera(const QString &id, const GivesUp &givesUp = {},
                                         Unnamed unnamed = Unnamed::First);

/** A camera that can be named to open it. */
struct ListedCamera
{
    QString id;
    QString name;
    std::int32_t accessStatus = 0; ///< an OrvCam::AccessStatus
};

/** Those of the process's camera system. Looks for real ones for a while. Throws a CameraSourceError. */
QVector<ListedCamera> listCameras(const GivesUp &givesUp = {});

/** The process's camera system, never null. Throws a CameraSourceError. */
std::shared_ptr<OrvCam::System> cameraSystem();

/** Waits until the features of \a device, whose name is given, can be had; false gives it up. */
using WaitForFeatures = std::function<bool(OrvCam::Device &device, const QString &name)>;

/**
 * The camera of that system that \a info describes, opened; null describes none. Null if \a wait gives it up. Throws a
 * CameraSourceError.
 */
std::unique_ptr<CameraSource> openCamera(const std::shared_ptr<OrvCam::System> &system, OrvCam::DeviceInfo *info,
                                         const WaitForFeatures &wait);
