#pragma once

#include <Base/GCString.h>

#include <vector>

namespace GENICAM_NAMESPACE {

using gcstring_vector = std::vector<gcstring>;

} // namespace GENICAM_NAMESPACE
