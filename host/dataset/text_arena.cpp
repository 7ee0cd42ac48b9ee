// Layout of a handle, lowest byte first: a tag, then the text itself (tags 0 to 7: its length), or
// three bytes of length and four of place (tag 8), or the number of a large text (tag 9).
#include "host/dataset/text_arena.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace host {

namespace {

static_assert(std::endian::native == std::endian::little, "handles are read byte by byte");

constexpr std::uint64_t in_chunk = 8, in_large = 9;
constexpr std::size_t longest_short = 7;
constexpr std::size_t most_chunks = std::size_t{1} << 12; // 4 GB: what four bytes can address

} // namespace

TextArena::Handle TextArena::store(std::string_view text) {
    if (text.size() <= longest_short) {
        Handle handle = text.size();
        if (!text.empty())
            std::memcpy(reinterpret_cast<char*>(&handle) + 1, text.data(), text.size());
        return handle;
    }
    if (text.size() > chunk_size / 4 || chunks_.size() >= most_chunks) {
        large_.emplace_back(text);
        return in_large | (static_cast<Handle>(large_.size() - 1) << 8);
    }
    if (chunks_.empty() || used_ + text.size() > size_) add_chunk(text.size());
    std::memcpy(chunks_.back().get() + used_, text.data(), text.size());
    const std::size_t place = (chunks_.size() - 1) * chunk_size + used_;
    used_ += text.size();
    return in_chunk | (static_cast<Handle>(text.size()) << 8) | (static_cast<Handle>(place) << 32);
}

// Each chunk is twice as large as the one before it, until they are as large as they get.
void TextArena::add_chunk(std::size_t needed) {
    const std::size_t wanted = std::max(size_ == 0 ? first_chunk_size : 2 * size_,
                                        std::bit_ceil(needed));
    size_ = std::min(wanted, chunk_size);
    chunks_.push_back(std::make_unique_for_overwrite<char[]>(size_));
    held_ += size_;
    used_ = 0;
}

std::string_view TextArena::read(const Handle& handle) const {
    const std::uint64_t tag = handle & 0xFF;
    if (tag <= longest_short)
        return {reinterpret_cast<const char*>(&handle) + 1, static_cast<std::size_t>(tag)};
    if (tag == in_large) return large_[handle >> 8];
    const std::size_t place = handle >> 32;
    return {chunks_[place / chunk_size].get() + place % chunk_size,
            static_cast<std::size_t>((handle >> 8) & 0xFFFFFF)};
}

std::size_t TextArena::bytes() const {
    std::size_t total = held_;
    for (const std::string& text : large_) total += text.capacity();
    return total;
}

} // namespace host
