// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <QTreeView>

#include <cstdint>
#include <optional>

/** The value of an integer feature; nothing where there are no parameters or the feature cannot be read. */
std::optional<std::int64_t> integerOf(OrvGenParam::Array *params, const char *name);

/**
 * Whether the features of the device's interface that speak of a device now speak of that. What is shown may be older
 * than what the interface lists, so its place is looked up there; false when it is missing. One that has its identifier
 * for itself may have become another object.
 */
bool selectDevice(OrvGenParam::Array *params, OrvCam::DeviceInfo &device, bool isUnique);

/** A table of what there is to know about one object: labels and values. */
class InfoPane : public QTreeView
{
    Q_OBJECT

public:
    explicit InfoPane(QWidget *parent = nullptr);

    /** Both are asked now and not kept. */
    void showDevice(OrvCam::DeviceInfo &device, bool isUnique);
    void showInterface(OrvCam::Interface &transport);

    /** From now on the width of the label column survives what is shown next. */
    void rememberWidth();

protected:
    void showEvent(QShowEvent *event) override;
    /** Shows tool tips as plain text: a camera's texts might look like HTML. */
    bool viewportEvent(QEvent *event) override;

private:
    void showRows(class QStandardItemModel *rows);

    int m_labelWidth = 0; ///< 0: not known yet
    int m_unseenWidth = 0; ///< what the label column was given while there was no room to be shared
};
