// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvGenApi/ziparchive.h>

#include "node.h"

#include <minizip/unzip.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <memory>
#include <strings.h>
#include <type_traits>

namespace OrvGenApi {

namespace {

/** An archive as a file; the library reads files through functions. */
struct MemoryFile
{
    const std::string &bytes;
    ZPOS64_T position = 0;
};

MemoryFile &fileOf(voidpf stream)
{
    return *static_cast<MemoryFile *>(stream);
}

voidpf open(voidpf file, const void *, int)
{
    return file;
}

uLong read(voidpf, voidpf stream, void *buffer, uLong size)
{
    MemoryFile &file = fileOf(stream);
    const std::size_t count = std::min<std::size_t>(size, file.bytes.size() - file.position);
    std::memcpy(buffer, file.bytes.data() + file.position, count);
    file.position += count;
    return static_cast<uLong>(count);
}

uLong write(voidpf, voidpf, const void *, uLong)
{
    return 0;
}

ZPOS64_T tell(voidpf, voidpf stream)
{
    return fileOf(stream).position;
}

/** 0, or -1 for a place that is not in the file. */
long seek(voidpf, voidpf stream, ZPOS64_T offset, int origin)
{
    MemoryFile &file = fileOf(stream);
    const ZPOS64_T size = file.bytes.size();
    const ZPOS64_T from = origin == SEEK_SET ? 0 : origin == SEEK_CUR ? file.position : size;
    if (offset > size - from)
        return -1;
    file.position = from + offset;
    return 0;
}

int done(voidpf, voidpf)
{
    return 0;
}

struct ZipCloser
{
    void operator()(unzFile archive) const { unzClose(archive); }
};
using Archive = std::unique_ptr<std::remove_pointer_t<unzFile>, ZipCloser>;

Archive openArchive(MemoryFile &file)
{
    zlib_filefunc64_def functions{open, read, write, tell, seek, done, done, &file};
    return Archive(unzOpen2_64("", &functions));
}

/** Whether the name of the current file ends so. */
bool isXml(unzFile archive)
{
    std::array<char, 1024> name{};
    if (unzGetCurrentFileInfo64(archive, nullptr, name.data(), name.size() - 1, nullptr, 0, nullptr, 0) != UNZ_OK)
        return false;
    const std::size_t length = std::strlen(name.data());
    return length >= 4 && strcasecmp(name.data() + length - 4, ".xml") == 0;
}

/** Goes to the first file with a description, or to the first file; false when there is none. */
bool goToDescription(unzFile archive)
{
    int found = unzGoToFirstFile(archive);
    while (found == UNZ_OK && !isXml(archive))
        found = unzGoToNextFile(archive);
    return found == UNZ_OK || unzGoToFirstFile(archive) == UNZ_OK;
}

/** False when the current file is damaged, or larger than \a most. */
bool readCurrent(unzFile archive, std::size_t most, std::string &text)
{
    std::array<char, 65536> part{};
    int got = 0;
    while (text.size() <= most && (got = unzReadCurrentFile(archive, part.data(), part.size())) > 0)
        text.append(part.data(), static_cast<std::size_t>(got));
    return unzCloseCurrentFile(archive) == UNZ_OK && got == 0 && text.size() <= most; // compares the checksum
}

} // namespace

std::string descriptionInZip(const std::string &zip, const std::string &sourceName)
{
    constexpr std::size_t most = std::size_t(1) << 26; // a small archive may unpack to more than any memory holds
    const auto fail = [&](const char *what) { ORV_THROW(RuntimeException, sourceName + ": " + what); };
    MemoryFile file{zip};
    const Archive archive = openArchive(file);
    if (!archive)
        fail("no ZIP archive");
    if (!goToDescription(archive.get()) || unzOpenCurrentFile(archive.get()) != UNZ_OK)
        fail("the ZIP archive holds no description");
    std::string text;
    if (!readCurrent(archive.get(), most, text))
        fail("the ZIP archive is damaged or unpacks to too much");
    return text;
}

} // namespace OrvGenApi
