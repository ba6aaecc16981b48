// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>

#include <cstddef>
#include <optional>
#include <string>

/** For tests only; not installed. Works on maps made by OrvGenApi::NodeMap. */
namespace OrvGenApi::testing {

/**
 * From now on \a getter of the node \a node throws a GenICam::RuntimeException with that description, or one whose
 * description is empty when there is none. Any public operation of a node can be named, a getter or not: "GetValue",
 * "GetMin", "GetAccessMode", "GetDisplayName", "SetValue", "Execute", "GetFeatures", "RegisterCallback" ...
 * Only calls from outside the engine throw; nodes that depend on this one go on working.
 */
ORV_GENAPI_EXPORT void failGetter(GenApi::INodeMap &map, const std::string &node, const std::string &getter,
                                  std::optional<std::string> description = std::nullopt);

/** Ends all that failGetter() began on this map. */
ORV_GENAPI_EXPORT void clearFaults(GenApi::INodeMap &map);

/** Callbacks that are registered on all nodes of the map now. */
ORV_GENAPI_EXPORT std::size_t registeredCallbacks(const GenApi::INodeMap &map);

} // namespace OrvGenApi::testing
