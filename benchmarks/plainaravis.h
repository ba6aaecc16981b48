// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstdint>
#include <string>

/** A camera in a program that uses nothing but Aravis. */
class PlainAravis
{
public:
    /** Opens the camera by its IPv4 address, without looking for others. Ends the program when that fails. */
    explicit PlainAravis(std::uint32_t address);
    ~PlainAravis();
    PlainAravis(const PlainAravis &) = delete;
    PlainAravis &operator=(const PlainAravis &) = delete;

    /** The value as text; empty if it cannot be read. */
    std::string value(const std::string &feature) const;

private:
    void *m_device;
};
