// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "pixellayout.h"

namespace OrvCameraApi {

namespace {

using Kind = PixelLayout::Kind;
using Mosaic = PixelLayout::Mosaic;

constexpr PixelLayout layouts[] = {
    {0x01080001, Kind::Unpacked, Mosaic::None, 8, "Mono8"},
    {0x01100003, Kind::Unpacked, Mosaic::None, 10, "Mono10"},
    {0x01100005, Kind::Unpacked, Mosaic::None, 12, "Mono12"},
    {0x01100007, Kind::Unpacked, Mosaic::None, 16, "Mono16"},
    {0x010A0046, Kind::Packed, Mosaic::None, 10, "Mono10p"},
    {0x010C0047, Kind::Packed, Mosaic::None, 12, "Mono12p"},
    {0x010C0004, Kind::GigePacked, Mosaic::None, 10, "Mono10Packed"},
    {0x010C0006, Kind::GigePacked, Mosaic::None, 12, "Mono12Packed"},
    {0x01080008, Kind::Unpacked, Mosaic::GR, 8, "BayerGR8"},
    {0x01080009, Kind::Unpacked, Mosaic::RG, 8, "BayerRG8"},
    {0x0108000A, Kind::Unpacked, Mosaic::GB, 8, "BayerGB8"},
    {0x0108000B, Kind::Unpacked, Mosaic::BG, 8, "BayerBG8"},
    {0x0110000C, Kind::Unpacked, Mosaic::GR, 10, "BayerGR10"},
    {0x0110000D, Kind::Unpacked, Mosaic::RG, 10, "BayerRG10"},
    {0x0110000E, Kind::Unpacked, Mosaic::GB, 10, "BayerGB10"},
    {0x0110000F, Kind::Unpacked, Mosaic::BG, 10, "BayerBG10"},
    {0x01100010, Kind::Unpacked, Mosaic::GR, 12, "BayerGR12"},
    {0x01100011, Kind::Unpacked, Mosaic::RG, 12, "BayerRG12"},
    {0x01100012, Kind::Unpacked, Mosaic::GB, 12, "BayerGB12"},
    {0x01100013, Kind::Unpacked, Mosaic::BG, 12, "BayerBG12"},
    {0x0110002E, Kind::Unpacked, Mosaic::GR, 16, "BayerGR16"},
    {0x0110002F, Kind::Unpacked, Mosaic::RG, 16, "BayerRG16"},
    {0x01100030, Kind::Unpacked, Mosaic::GB, 16, "BayerGB16"},
    {0x01100031, Kind::Unpacked, Mosaic::BG, 16, "BayerBG16"},
    {0x010A0056, Kind::Packed, Mosaic::GR, 10, "BayerGR10p"},
    {0x010A0058, Kind::Packed, Mosaic::RG, 10, "BayerRG10p"},
    {0x010A0054, Kind::Packed, Mosaic::GB, 10, "BayerGB10p"},
    {0x010A0052, Kind::Packed, Mosaic::BG, 10, "BayerBG10p"},
    {0x010C0057, Kind::Packed, Mosaic::GR, 12, "BayerGR12p"},
    {0x010C0059, Kind::Packed, Mosaic::RG, 12, "BayerRG12p"},
    {0x010C0055, Kind::Packed, Mosaic::GB, 12, "BayerGB12p"},
    {0x010C0053, Kind::Packed, Mosaic::BG, 12, "BayerBG12p"},
    {0x010C0026, Kind::GigePacked, Mosaic::GR, 10, "BayerGR10Packed"},
    {0x010C0027, Kind::GigePacked, Mosaic::RG, 10, "BayerRG10Packed"},
    {0x010C0028, Kind::GigePacked, Mosaic::GB, 10, "BayerGB10Packed"},
    {0x010C0029, Kind::GigePacked, Mosaic::BG, 10, "BayerBG10Packed"},
    {0x010C002A, Kind::GigePacked, Mosaic::GR, 12, "BayerGR12Packed"},
    {0x010C002B, Kind::GigePacked, Mosaic::RG, 12, "BayerRG12Packed"},
    {0x010C002C, Kind::GigePacked, Mosaic::GB, 12, "BayerGB12Packed"},
    {0x010C002D, Kind::GigePacked, Mosaic::BG, 12, "BayerBG12Packed"},
    {0x02180014, Kind::Rgb, Mosaic::None, 8, "RGB8"},
    {0x02180015, Kind::Bgr, Mosaic::None, 8, "BGR8"},
    {0x02100032, Kind::Yuyv, Mosaic::None, 8, "YUV422_8"},
    {0x0210001F, Kind::Uyvy, Mosaic::None, 8, "YUV422_8_UYVY"},
};

} // namespace

std::optional<PixelLayout> pixelLayout(const std::string &name, std::int64_t code)
{
    for (const PixelLayout &layout : layouts) {
        if (name == layout.name)
            return layout;
    }
    for (const PixelLayout &layout : layouts) {
        if (code == layout.code)
            return layout;
    }
    return std::nullopt;
}

} // namespace OrvCameraApi
