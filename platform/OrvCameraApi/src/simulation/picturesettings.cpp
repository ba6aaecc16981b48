// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "picturesettings.h"

#include "genapierror.h"
#include "nodemaplock.h"

#include <GenApi/GenApi.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <optional>
#include <string>

namespace OrvCameraApi {

namespace {

constexpr std::int64_t longestLine = 1 << 16;
constexpr std::int64_t largestPicture = std::int64_t(256) << 20;

/** A reddish lamp, for which the white balance of a camera makes up. */
constexpr std::array<double, Scene::Channels> lamp{256.0 / 380, 1, 256.0 / 420, 1};

[[noreturn]] void fail(const std::string &text)
{
    throw GenICam::RuntimeException(text.c_str(), __FILE__, __LINE__);
}

class Features
{
public:
    explicit Features(GenApi::INodeMap &map)
        : m_map(map)
    {
    }

    std::optional<double> number(const char *name) const
    {
        std::optional<double> value;
        failureOf([&] {
            GenApi::INode *const node = m_map.GetNode(name);
            if (const auto real = dynamic_cast<GenApi::IFloat *>(node))
                value = real->GetValue();
            else if (const auto integer = dynamic_cast<GenApi::IInteger *>(node))
                value = double(integer->GetValue());
            else if (const auto choice = dynamic_cast<GenApi::IEnumeration *>(node))
                value = double(choice->GetIntValue());
            else if (const auto boolean = dynamic_cast<GenApi::IBoolean *>(node))
                value = boolean->GetValue() ? 1 : 0;
        });
        return value && std::isfinite(*value) ? value : std::nullopt;
    }

    double number(const char *name, double otherwise) const { return number(name).value_or(otherwise); }

    /** The name of the entry that is chosen, empty if there is none. */
    std::string entry(const char *name) const
    {
        std::string text;
        failureOf([&] {
            const GenApi::CEnumerationPtr choice(m_map.GetNode(name));
            GenApi::IEnumEntry *const current = choice.IsValid() ? choice->GetCurrentEntry() : nullptr;
            text = current ? current->GetSymbolic().c_str() : "";
        });
        return text;
    }

    /** Of a feature that a picture cannot do without. */
    std::int64_t required(const char *name) const
    {
        std::int64_t value = 0;
        const std::string failure = failureOf([&] {
            GenApi::INode *const node = m_map.GetNode(name);
            if (const auto choice = dynamic_cast<GenApi::IEnumeration *>(node))
                value = choice->GetIntValue();
            else if (const auto integer = dynamic_cast<GenApi::IInteger *>(node))
                value = integer->GetValue();
            else
                fail("there is no such feature");
        });
        if (!failure.empty())
            fail(std::string(name) + " cannot be read: " + failure);
        return value;
    }

private:
    GenApi::INodeMap &m_map;
};

std::uint32_t readExtent(const Features &features, const char *name)
{
    const std::int64_t pixels = features.required(name);
    if (pixels < 1 || pixels > longestLine)
        fail(std::string(name) + " is " + std::to_string(pixels) + ", of which no picture is simulated");
    return std::uint32_t(pixels);
}

void readFormat(const Features &features, PictureSettings &settings)
{
    const std::int64_t code = features.required("PixelFormat");
    const std::string name = features.entry("PixelFormat");
    const std::optional<PixelLayout> layout = pixelLayout(name, code);
    if (!layout)
        fail("The pixel format " + (name.empty() ? std::to_string(code) : name) + " is not simulated");
    settings.layout = *layout;
    settings.width = readExtent(features, "Width");
    settings.height = readExtent(features, "Height");
    const std::uint64_t bytes = layout->bytes(std::uint64_t(settings.width) * settings.height);
    if (bytes > std::uint64_t(largestPicture))
        fail("A picture of " + std::to_string(settings.width) + " x " + std::to_string(settings.height)
             + " pixels is too large to be simulated");
    settings.size = std::size_t(bytes);
}

/** How many of the sensor's pixels become one. */
double readStep(const Features &features, const std::string &direction, const char *region, std::uint32_t pixels)
{
    double step = features.number(region, pixels) / pixels;
    for (const char *const kind : {"Decimation", "Binning"})
        step *= std::clamp(features.number((kind + direction).c_str(), 1), 1.0, 64.0);
    return std::clamp(step, 1.0 / 64, 4096.0);
}

/** Standard offsets count pixels of the picture, those of a frame the sensor's. */
double readOffset(const Features &features, const char *standard, const char *ofFrame, double step)
{
    constexpr double farthest = 1e9;
    const double offset = features.number(standard, 0) * step + features.number(ofFrame, 0);
    return std::clamp(offset, -farthest, farthest);
}

void readRegion(const Features &features, PictureSettings &settings)
{
    settings.stepX = readStep(features, "Horizontal", "Frame_Width", settings.width);
    settings.stepY = readStep(features, "Vertical", "Frame_Height", settings.height);
    settings.left = readOffset(features, "OffsetX", "Frame_OffsetX", settings.stepX);
    settings.top = readOffset(features, "OffsetY", "Frame_OffsetY", settings.stepY);
    settings.isMirroredX = features.number("ReverseX", 0) != 0;
    settings.isMirroredY = features.number("ReverseY", 0) != 0;
}

double decibels(double gain)
{
    return std::pow(10, std::clamp(gain, -100.0, 100.0) / 20);
}

double powerOfTwo(double exponent)
{
    return std::pow(2, std::clamp(exponent, -16.0, 16.0));
}

/**
 * The light that exposure and gains make of a light, 1 with the usual settings. The simulated film is patient: eight
 * times the light is a value twice as high, so that pictures show something over the whole range of a camera.
 */
double readSensitivity(const Features &features)
{
    constexpr double usualExposure = 10000; // us
    constexpr double usualExposureOfFrames = 200;
    double light = 1;
    if (const std::optional<double> time = features.number("ExposureTime"))
        light = *time / usualExposure;
    else
        light = features.number("CurrentExposureTime", usualExposureOfFrames) / usualExposureOfFrames;
    light *= decibels(features.number("Gain", 0));
    light *= powerOfTwo(features.number("Frame_AnalogGain", 0));
    light *= powerOfTwo(features.number("Frame_DigitalCourseGain", 0));
    light *= std::clamp(1 + features.number("Frame_DigitalFineGain", 0) / 64, 0.0, 64.0);
    return std::cbrt(std::clamp(light, 0.0, 1e9));
}

void readWhiteBalance(const Features &features, PictureSettings &settings)
{
    constexpr const char *coefficients[] = {"RedCoefficient", "GreenCoefficient", "BlueCoefficient"};
    const std::string automatic = features.entry("BalanceWhiteAuto");
    if (!automatic.empty() && automatic != "Off")
        return;
    for (std::size_t i = 0; i < std::size(coefficients); ++i) {
        if (const std::optional<double> coefficient = features.number(coefficients[i]))
            settings.gains[i] *= lamp[i] * std::clamp(*coefficient / 256, 0.0, 64.0);
    }
}

void readTones(const Features &features, PictureSettings &settings)
{
    settings.gains.fill(readSensitivity(features) / 255);
    readWhiteBalance(features, settings);
    const double level = features.number("BlackLevel", 0) + features.number("Frame_BlackLevel", 0);
    settings.black = std::clamp(level / 4095, -1.0, 1.0); // in 12 bits
}

/** Patterns are made behind the converter, so that exposure, gains and black level make no difference. */
void readPattern(const Features &features, PictureSettings &settings)
{
    std::string name = features.entry("TestPattern");
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char byte) { return char(std::tolower(byte)); });
    const auto has = [&name](const char *part) { return name.find(part) != std::string::npos; };
    if (has("checker"))
        settings.pattern = Scene::Pattern::Checkerboard;
    else if (has("vertical"))
        settings.pattern = Scene::Pattern::VerticalRamp;
    else if (has("diagonal"))
        settings.pattern = Scene::Pattern::DiagonalRamp;
    else if (has("horizontal") || has("ramp"))
        settings.pattern = Scene::Pattern::HorizontalRamp;
    if (settings.pattern != Scene::Pattern::None) {
        settings.gains.fill(1.0 / 255);
        settings.black = 0;
    }
}

void readPeriod(const Features &features, PictureSettings &settings)
{
    constexpr double usualRate = 30; // Hz
    const double wanted = features.number("AcquisitionFrameRate", usualRate);
    const double rate = wanted > 0 ? std::clamp(wanted, 0.1, 1000.0) : usualRate;
    const double needed = features.number("CurrentFrameTime", features.number("ExposureTime", 0)); // us
    settings.period = std::chrono::microseconds(std::int64_t(std::clamp(needed, 1e6 / rate, 1e7)));
}

} // namespace

PictureSettings readPictureSettings(GenApi::INodeMap &map)
{
    const NodeMapLock lock(map);
    const Features features(map);
    PictureSettings settings;
    readFormat(features, settings);
    readRegion(features, settings);
    readTones(features, settings);
    readPattern(features, settings);
    readPeriod(features, settings);
    return settings;
}

} // namespace OrvCameraApi
