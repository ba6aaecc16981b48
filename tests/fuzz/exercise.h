// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <string_view>

namespace OrvGenApi::fuzz {

/**
 * Loads \a description and does with it whatever a user of a node map can do: reads everything, registers and removes
 * callbacks, polls, writes. GenICam exceptions are answers like others; anything else is a fault and passes through.
 *
 * Behind the map is a device that takes any address, answers with bytes that depend on it, and fails now and then. It
 * serves a limited number of bytes, so that the time one description can take is limited as well.
 */
void exerciseDescription(std::string_view description);

} // namespace OrvGenApi::fuzz
