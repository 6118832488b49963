#pragma once

#include <cstddef>
#include <cstdint>

/// Takes one input; aborts when it falls short. What the fuzzer calls, or the replay of a corpus where there is none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
