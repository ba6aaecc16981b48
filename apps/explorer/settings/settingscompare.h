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

/** The selectors of a feature, outside in, by name. */
using SelectorNames = std::function<QVector<QByteArray>(const QByteArray &feature)>;

/**
 * What differs between two files, in the order of the left one. \a selectors may be null; where it knows none, a
 * feature that stands there more than once belongs to the line of a "...Selector" or "...Index" above it.
 */
QVector<SettingDifference> compareSettings(const SettingsFile &left, const SettingsFile &right,
                                           const SelectorNames &selectors);

/** What differs between a file, the left, and a camera. Selectors are moved, and put back. */
QVector<SettingDifference> compareWithCamera(const SettingsFile &file, GenApi::INodeMap &map,
                                             const SettingsProgress &progress);

/** As the camera has them; it must outlive the result. */
SelectorNames selectorsOf(GenApi::INodeMap &map);
