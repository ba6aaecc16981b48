// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstddef>
#include <string_view>

namespace OrvCameraApi {

struct EmbeddedFile
{
    std::string_view name;
    std::string_view text;
};

extern const EmbeddedFile embeddedFiles[];
extern const std::size_t embeddedFileCount;

} // namespace OrvCameraApi
