// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/camerastatus.h>

namespace OrvGui {

CameraParams::CameraParams(OrvGenParam::Array &params)
    : frameAbSelector(params.GetEnum("FrameAB_Selector", nullptr))
    , frameMode(params.GetEnum("FrameMode", nullptr))
    , sensorType(params.GetEnum("SensorType", nullptr))
    , temperature(params.GetInt("CurrentTemperature", nullptr))
    , exposureTime(params.GetInt("CurrentExposureTime", nullptr))
    , frameTime(params.GetInt("CurrentFrameTime", nullptr))
    , width(params.GetInt("Width", nullptr))
    , height(params.GetInt("Height", nullptr))
    , rgsId(params.GetInt("RgsID", nullptr))
    , fpgaId(params.GetInt("FpgaID", nullptr))
    , epcsId(params.GetInt("EpcsID", nullptr))
    , firmwareImage(params.GetInt("FirmwareImage", nullptr))
    , customerId(params.GetInt("CustomerID", nullptr))
    , familyId(params.GetInt("FamilyID", nullptr))
    , xmlVersion(params.GetInt("XmlVersion", nullptr))
    , vendorName(params.GetString("DeviceVendorName", nullptr))
    , modelName(params.GetString("DeviceModelName", nullptr))
    , familyName(params.GetString("DeviceFamilyName", nullptr))
    , deviceVersion(params.GetString("DeviceVersion", nullptr))
    , firmwareVersion(params.GetString("DeviceFirmwareVersion", nullptr))
    , manufacturerInfo(params.GetString("DeviceManufacturerInfo", nullptr))
    , serialNumber(params.GetString("DeviceSerialNumber", nullptr))
    , userDefinedName(params.GetString("DeviceUserID", nullptr))
{
}

std::optional<std::int64_t> valueOf(OrvGenParam::Int *param)
{
    OrvCamErr err = OrvCamErr_Ok;
    const std::int64_t value = param ? param->GetValue(&err) : 0;
    return param && err == OrvCamErr_Ok ? std::optional(value) : std::nullopt;
}

static std::optional<QString> textFrom(const char *text, OrvCamErr err)
{
    return text && err == OrvCamErr_Ok ? std::optional(QString::fromUtf8(text)) : std::nullopt;
}

std::optional<QString> valueOf(OrvGenParam::Enum *param)
{
    OrvCamErr err = OrvCamErr_Ok;
    const char *const text = param ? param->GetValueStr(&err) : nullptr;
    return textFrom(text, err);
}

std::optional<QString> valueOf(OrvGenParam::String *param)
{
    OrvCamErr err = OrvCamErr_Ok;
    const char *const text = param ? param->GetValue(&err) : nullptr;
    return textFrom(text, err);
}

QString decimal(OrvGenParam::Int *param)
{
    const auto value = valueOf(param);
    return value ? QString::number(*value) : QString();
}

QString sizeText(OrvGenParam::Int *width, OrvGenParam::Int *height)
{
    const QString across = decimal(width);
    const QString down = decimal(height);
    return across.isEmpty() || down.isEmpty() ? QString() : across + QLatin1Char('x') + down;
}

QString framesPerSecond(std::int64_t frameTime)
{
    constexpr double microseconds = 1'000'000;
    return QString::number(frameTime == 0 ? 0 : microseconds / double(frameTime), 'f', 2);
}

} // namespace OrvGui
