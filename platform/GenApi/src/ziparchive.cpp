#include <OrvGenApi/ziparchive.h>

#include "node.h"

#include <zip.h>

#include <algorithm>
#include <memory>
#include <strings.h>

namespace OrvGenApi {

namespace {

struct ZipDeleter
{
    void operator()(zip_t *archive) const { zip_discard(archive); }
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};
using Archive = std::unique_ptr<zip_t, ZipDeleter>;
using File = std::unique_ptr<zip_file_t, ZipDeleter>;

bool isXml(const std::string &name)
{
    return name.size() >= 4 && strcasecmp(name.c_str() + name.size() - 4, ".xml") == 0;
}

Archive open(const std::string &zip, zip_error_t &error)
{
    zip_source_t *const source = zip_source_buffer_create(zip.data(), zip.size(), 0, &error);
    if (!source)
        return nullptr;
    Archive archive(zip_open_from_source(source, ZIP_RDONLY, &error));
    if (!archive)
        zip_source_free(source);
    return archive;
}

} // namespace

std::string descriptionInZip(const std::string &zip, const std::string &sourceName)
{
    zip_error_t error;
    zip_error_init(&error);
    const auto fail = [&](const std::string &what) {
        zip_error_fini(&error);
        ORV_THROW(RuntimeException, sourceName + ": " + what);
    };
    const Archive archive = open(zip, error);
    if (!archive)
        fail(std::string("no ZIP archive: ") + zip_error_strerror(&error));

    zip_uint64_t place = 0;
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    for (zip_int64_t i = count; i-- > 0;) {
        const char *const name = zip_get_name(archive.get(), static_cast<zip_uint64_t>(i), 0);
        if (name && isXml(name))
            place = static_cast<zip_uint64_t>(i);
    }
    const File file(count > 0 ? zip_fopen_index(archive.get(), place, 0) : nullptr);
    if (!file)
        fail("the ZIP archive holds no description");

    constexpr std::size_t most = std::size_t(1) << 26; // a small archive may unpack to more than any memory holds
    std::string text;
    zip_int64_t got = 0;
    char part[65536];
    while ((got = zip_fread(file.get(), part, sizeof part)) > 0 && text.size() <= most)
        text.append(part, static_cast<std::size_t>(got));
    if (got != 0)
        fail("the ZIP archive is damaged or unpacks to too much");
    zip_error_fini(&error);
    return text;
}

} // namespace OrvGenApi
