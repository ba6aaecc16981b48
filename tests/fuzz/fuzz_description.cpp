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

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    OrvGenApi::fuzz::exerciseDescription({reinterpret_cast<const char *>(data), size});
    return 0;
}
