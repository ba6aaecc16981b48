#pragma once

#include <string>

namespace OrvCameraApi {

/**
 * A file of descriptions/ that was built in, by its name; in place of every line "<?include NAME?>" stands the file
 * NAME. Empty when there is no such file.
 */
std::string description(const std::string &name);

} // namespace OrvCameraApi
