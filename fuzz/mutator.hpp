// How inputs are changed, beside the fuzzer's own changes of bytes. mutator.cpp changes messages as messages.
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" std::size_t LLVMFuzzerMutate( uint8_t *data, std::size_t size, std::size_t maxSize );
extern "C" std::size_t LLVMFuzzerCustomMutator( uint8_t *data, std::size_t size, std::size_t maxSize,
                                                unsigned seed );
extern "C" std::size_t LLVMFuzzerCustomCrossOver( const uint8_t *data1, std::size_t size1,
                                                  const uint8_t *data2, std::size_t size2, uint8_t *out,
                                                  std::size_t maxOutSize, unsigned seed );

namespace fuzz
{

// Where the message begins in an input of a target that mutator.cpp belongs to; the target states it.
extern const std::size_t messageOffset;

} // namespace fuzz
