// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/** What a fuzzer's main calls with each input: libFuzzer's, or that of replay.cpp, which every build has. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);
/** Called once before. */
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

/** Ends the program, for both kinds of main, where something that must always hold does not. */
#define FUZZ_REQUIRE(condition)                                                                                        \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);                        \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)
