#pragma once

#include <string>

namespace OrvGenApi {

/**
 * The description in an archive that \a zip holds: its first file that ends in ".xml", or its first file. Throws a
 * RuntimeException that names \a sourceName when there is none or it cannot be unpacked.
 */
std::string descriptionInZip(const std::string &zip, const std::string &sourceName);

} // namespace OrvGenApi
