// Texts come out of the arena as they went in.
#include "host/dataset/text_arena.h"

#include <random>

namespace host {

TEST(TextArena, every_text_comes_back_whatever_its_length) {
    TextArena arena;
    std::mt19937 chance(3);
    std::vector<std::string> texts = {"", "1", "1234567", "12345678", std::string("a\0b", 3)};
    for (int i = 0; i < 5'000; ++i)
        texts.push_back(std::string(chance() % 300, static_cast<char>('a' + i % 26)));
    texts.push_back(std::string(3'000'000, 'x')); // larger than a chunk
    std::vector<TextArena::Handle> handles;
    for (const std::string& text : texts) handles.push_back(arena.store(text));
    for (std::size_t i = 0; i < texts.size(); ++i) EXPECT_EQ(arena.read(handles[i]), texts[i]);
}

TEST(TextArena, short_texts_take_no_memory_beside_their_handle) {
    TextArena arena;
    for (int i = 0; i < 100'000; ++i) arena.store("2024-03");
    EXPECT_EQ(arena.bytes(), 0U);
}

TEST(TextArena, a_few_texts_take_a_few_bytes_and_many_little_more_than_their_own) {
    TextArena few;
    few.store("银行存款-工行基本户");
    EXPECT_LE(few.bytes(), 1024U);
    TextArena many;
    const std::string text(100, 'x');
    for (int i = 0; i < 100'000; ++i) many.store(text);
    EXPECT_LE(many.bytes(), 100'000U * 100 + (1U << 21));
}

} // namespace host
