// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Feeds descriptions to the node-map engine. To run it longer than `.ci/fuzz` does:
//
//     cmake --preset fuzz && cmake --build --preset fuzz --target fuzz_description
//     mkdir -p build/fuzz/found
//     build/fuzz/bin/fuzz_description build/fuzz/found tests/fuzz/corpus/description \
//         -dict=tests/fuzz/description.dict -max_len=8192 -timeout=10 -max_total_time=600
//
// What it finds it leaves as a file crash-..., timeout-... or leak-...; with the file's name as the only argument it
// runs that input alone. Reduce it (-minimize_crash=1), mend the fault, and put the input into corpus/description under
// a name that tells what it holds: the test tst_fuzzcorpus replays all of them in every build. To take over new inputs
// that reach new code: fuzz_description -merge=1 corpus/description found, then drop what adds little; it stays below
// 100 KB.

#include "exercise.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);
extern "C" std::size_t LLVMFuzzerMutate(uint8_t *data, std::size_t size, std::size_t room);
extern "C" std::size_t LLVMFuzzerCustomMutator(uint8_t *data, std::size_t size, std::size_t room, unsigned seed);

namespace {

/** The texts between tags that are not only white space: numbers, names of nodes, formulas. */
std::vector<std::string_view> contentsOf(std::string_view description)
{
    std::vector<std::string_view> contents;
    for (std::size_t end = 0, begin = 0; (begin = description.find('>', end)) != description.npos;) {
        end = std::min(description.find('<', ++begin), description.size());
        const std::string_view content = description.substr(begin, end - begin);
        if (content.find_first_not_of(" \t\r\n") != content.npos)
            contents.push_back(content);
    }
    return contents;
}

/** Limits of what the engine calculates with and of the fields of registers. */
constexpr std::array<std::string_view, 16> Extremes{"-9223372036854775808",
                                                    "9223372036854775807",
                                                    "0xFFFFFFFFFFFFFFFF",
                                                    "4294967296",
                                                    "-1e308",
                                                    "5e-324",
                                                    "NaN",
                                                    "-1",
                                                    "0",
                                                    "1",
                                                    "7",
                                                    "8",
                                                    "31",
                                                    "32",
                                                    "63",
                                                    "64"};

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    OrvGenApi::fuzz::exerciseDescription({reinterpret_cast<const char *>(data), size});
    return 0;
}

/** Every other time the content of one element becomes an extreme number or that of another; bytes alone rarely do. */
std::size_t LLVMFuzzerCustomMutator(uint8_t *data, std::size_t size, std::size_t room, unsigned seed)
{
    std::minstd_rand random(seed);
    const std::string description(reinterpret_cast<const char *>(data), size);
    const std::vector<std::string_view> contents = contentsOf(description);
    if (contents.empty() || random() % 2 == 0)
        return LLVMFuzzerMutate(data, size, room);
    const std::string_view before = contents[random() % contents.size()];
    const std::string_view after =
        random() % 2 == 0 ? Extremes[random() % Extremes.size()] : contents[random() % contents.size()];
    std::string changed = description;
    changed.replace(static_cast<std::size_t>(before.data() - description.data()), before.size(), after);
    changed.resize(std::min(changed.size(), room));
    std::copy(changed.begin(), changed.end(), data);
    return changed.size();
}
