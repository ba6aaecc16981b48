// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>

#include <string>

namespace OrvGenApi {

/**
 * The description in an archive that \a zip holds: its first file that ends in ".xml", or its first file. Throws a
 * GenICam::RuntimeException that names \a sourceName when there is none, it cannot be unpacked, or it unpacks to more
 * than 64 MiB.
 */
ORV_GENAPI_EXPORT std::string descriptionInZip(const std::string &zip, const std::string &sourceName);

} // namespace OrvGenApi
