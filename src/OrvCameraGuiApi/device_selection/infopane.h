#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <QTreeView>

#include <cstdint>
#include <optional>

/** The value of an integer feature; nothing where there are no parameters or the feature cannot be read. */
std::optional<std::int64_t> integerOf(OrvGenParam::Array *params, const char *name);

/** Whether the features that speak of a device now speak of that in \a row of the interface. */
bool selectDevice(OrvGenParam::Array *params, int row);

/** A table of what there is to know about one object: labels and values. */
class InfoPane : public QTreeView
{
    Q_OBJECT

public:
    explicit InfoPane(QWidget *parent = nullptr);

    /** \a row: where the device stands on \a transport, which may be null. Both are asked now and not kept. */
    void showDevice(OrvCam::DeviceInfo &device, OrvCam::Interface *transport, int row);
    void showInterface(OrvCam::Interface &transport);

    /** From now on the width of the label column survives what is shown next. */
    void rememberWidth();

private:
    void showRows(class QStandardItemModel *rows);

    int m_labelWidth = 0; ///< 0: not known yet
};
