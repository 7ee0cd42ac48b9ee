// Sentences for errors.
#include "app/data/error_sentence.h"

#include <gtest/gtest.h>

namespace app {
namespace {

std::string sentence(int number, engines::ErrorCategory category, std::string text = "engine") {
    engines::Error error;
    error.number = number;
    error.category = category;
    error.text = std::move(text);
    return sentence_for(error);
}

} // namespace

TEST(ErrorSentence, every_category_has_a_sentence_of_its_own_that_hides_the_engines_words) {
    for (int category = 0; category <= static_cast<int>(engines::ErrorCategory::internal);
         ++category) {
        if (category == static_cast<int>(engines::ErrorCategory::user)) continue;
        const std::string text = sentence(0, static_cast<engines::ErrorCategory>(category));
        EXPECT_TRUE(text.ends_with("!")) << category;
        EXPECT_EQ(text.find("engine"), std::string::npos) << category;
    }
}

TEST(ErrorSentence, a_number_says_more_than_its_category) {
    using engines::ErrorCategory;
    EXPECT_NE(sentence(2627, ErrorCategory::constraint), sentence(0, ErrorCategory::constraint));
    EXPECT_NE(sentence(8152, ErrorCategory::conversion), sentence(245, ErrorCategory::conversion));
    for (const int number : {102, 105, 156, 174, 191, 195, 207, 313, 4121, 8144})
        EXPECT_NE(sentence(number, ErrorCategory::syntax), sentence(0, ErrorCategory::syntax));
}

TEST(ErrorSentence, a_text_raised_on_purpose_is_shown_as_it_is) {
    EXPECT_EQ(sentence(50000, engines::ErrorCategory::user, "期间已结帐!"), "期间已结帐!");
}

} // namespace app
