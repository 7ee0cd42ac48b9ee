// Many short texts in little memory: each is one 64-bit handle.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// Texts of up to seven bytes ("2024-03", most codes) live in the handle itself; longer ones in
// chunks that never move. A text given up stays until the arena goes: a person's typing is small
// beside what a query loads. The first chunks are small, since most datasets are.
class TextArena {
public:
    using Handle = std::uint64_t;
    static constexpr Handle empty = 0;

    Handle store(std::string_view text);
    // Valid while the arena and `handle` live (short texts are read out of the handle).
    std::string_view read(const Handle& handle) const;
    std::size_t bytes() const; // memory held

private:
    static constexpr std::size_t chunk_size = std::size_t{1} << 20; // of the largest chunks
    static constexpr std::size_t first_chunk_size = 1024;

    void add_chunk(std::size_t needed);

    std::vector<std::unique_ptr<char[]>> chunks_;
    std::size_t size_ = 0; // of the last chunk
    std::size_t used_ = 0; // of the last chunk
    std::size_t held_ = 0; // by all chunks
    std::vector<std::string> large_;
};

} // namespace host
