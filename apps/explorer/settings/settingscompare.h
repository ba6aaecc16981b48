// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "settingsloader.h"

/** A feature that two sets of settings do not agree on. */
struct SettingDifference
{
    QByteArray name;
    QVector<Setting> context; ///< the entries of its selectors
    QByteArray left;
    QByteArray right;
    bool isLeft = true; ///< it is in the left set
    bool isRight = true;
    QString reason; ///< why it cannot be read, or is on one side only
};

/**
 * What differs between two files, in the order of the left one. \a camera, which may be null, knows selectors and kinds
 * of values. Where it does not, a feature that stands there more than once belongs to the line of a "...Selector" or
 * "...Index" above it, and texts count.
 */
QVector<SettingDifference> compareSettings(const SettingsFile &left, const SettingsFile &right, FeatureMap *camera);

/**
 * What differs between a file, the left, and a camera; what the camera could not tell is added to \a remarks, also when
 * the progress interrupts it. Selectors are moved, and put back. Throws a SettingsError if the camera is lost.
 */
QVector<SettingDifference> compareWithCamera(const SettingsFile &file, GenApi::INodeMap &map, QStringList &remarks,
                                             const SettingsProgress &progress);
