// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "descriptions.h"

#include "embeddedfiles.h"

#include <algorithm>

namespace OrvCameraApi {

std::string description(const std::string &name)
{
    static const std::string opening = "<?include ";
    static const std::string closing = "?>";

    const EmbeddedFile *const end = embeddedFiles + embeddedFileCount;
    const EmbeddedFile *const found =
        std::find_if(embeddedFiles, end, [&name](const EmbeddedFile &file) { return file.name == name; });
    std::string text(found == end ? std::string_view() : found->text);
    for (std::size_t at = text.find(opening); at != std::string::npos; at = text.find(opening, at)) {
        const std::size_t nameAt = at + opening.size();
        const std::size_t nameEnd = text.find(closing, nameAt);
        const std::string included = description(text.substr(nameAt, nameEnd - nameAt));
        text.replace(at, nameEnd + closing.size() - at, included);
        at += included.size();
    }
    return text;
}

} // namespace OrvCameraApi
