// How inputs are changed, in addition to the fuzzer's own changes of bytes. mutator.cpp changes messages as messages;
// naming.cpp keeps the name that an input begins with. Each target states what its mutator needs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate( uint8_t *data, std::size_t size, std::size_t maxSize );
extern "C" std::size_t LLVMFuzzerCustomMutator( uint8_t *data, std::size_t size, std::size_t maxSize,
                                                unsigned seed );

namespace fuzz
{

// For mutator.cpp: where the message begins in an input.
extern const std::size_t messageOffset;

// For naming.cpp: the names that an input may begin with.
extern const std::vector<std::string_view> names;

} // namespace fuzz
