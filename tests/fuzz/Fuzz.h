#pragma once

#include <cstdlib>

#include <fuzzer/FuzzedDataProvider.h>

/// What a fuzz target demands of the code; libFuzzer keeps the input of a run that aborts.
#define DEMAND(condition) ((condition) ? static_cast<void>(0) : std::abort())

/// The entry point that libFuzzer calls for each input.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);
