// Walks the tokens of a batch: looking ahead, taking, and refusing in the server's words.
#pragma once

#include "tsql/lexer/token.h"
#include "tsql/syntax/name.h"

namespace tsql {

// How deeply a text may nest before it is refused (191). The tree's height is bounded too, so that
// those who walk it by recursion never run out of stack.
constexpr int deepest_nesting = 100;
constexpr int tallest_tree = 600;

class TokenCursor {
public:
    // The text and its tokens must outlive the cursor.
    TokenCursor(std::string_view batch, const std::vector<Token>& tokens)
        : batch_(batch), tokens_(tokens) {}

    std::string_view batch() const { return batch_; }

    const Token& peek(std::size_t ahead = 0) const {
        return tokens_[std::min(next_ + ahead, tokens_.size() - 1)];
    }
    bool at(TokenKind kind) const { return peek().kind == kind; }
    bool at(Keyword keyword) const { return peek().keyword == keyword; }
    bool at(Keyword first, Keyword second) const { return at(first) && peek(1).keyword == second; }
    bool at_end() const { return at(TokenKind::End); }

    const Token& take() {
        const Token& token = peek();
        if (next_ + 1 < tokens_.size()) ++next_;
        return token;
    }
    template <typename What> bool accept(What what) {
        if (!at(what)) return false;
        take();
        return true;
    }
    // Takes both words or none.
    bool accept(Keyword first, Keyword second) {
        if (!at(first, second)) return false;
        take();
        take();
        return true;
    }
    template <typename What> const Token& expect(What what) {
        if (!at(what)) refuse_here();
        return take();
    }

    // Whether the next token is a word of this spelling, whatever its case; for words that are no
    // keywords: `at_word("NOLOCK")`.
    bool at_word(std::string_view upper) const;
    std::string upper_word() const; // the next token's text in capitals

    // The end of the token last taken; a node's stretch ends here.
    SourceRange last() const { return next_ == 0 ? SourceRange{} : tokens_[next_ - 1].at; }
    SourceRange since(SourceRange first) const {
        return {first.begin, std::max(first.begin, last().end)};
    }
    std::string value(const Token& token) const { return value_of(token, batch_); }
    bool nothing_taken() const { return next_ == 0; }

    // 156 near a reserved word, else 102 near the token; at the end near the last one.
    [[noreturn]] void refuse_here() const { refuse(peek()); }
    [[noreturn]] void refuse(const Token& token) const;
    // A thing of T-SQL that this front end does not take, named in the message: 40510.
    [[noreturn]] void refuse_unsupported(std::string_view what, SourceRange at) const;

    // Literals that became nodes; the others shape the tree.
    void note_literal_node(const Token& token) { literal_nodes_.push_back(token.literal_ordinal); }
    std::vector<int> shaping_literals() const;

    // Bounds the recursion of the parser and the height of the tree under construction.
    class Nesting {
    public:
        explicit Nesting(TokenCursor& cursor) : cursor_(cursor), outer_height_(cursor.height_) {
            cursor_.height_ = 0;
            if (++cursor_.depth_ > deepest_nesting) cursor_.refuse_depth();
        }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;
        ~Nesting() {
            --cursor_.depth_;
            cursor_.height_ = std::max(outer_height_, cursor_.height_ + 1);
        }

    private:
        TokenCursor& cursor_;
        int outer_height_;
    };
    // A chain such as a + b + c grows the tree to the left without recursion of the parser.
    void grow_chain() {
        if (++height_ > tallest_tree) refuse_depth();
    }

private:
    [[noreturn]] void refuse_depth() const;

    std::string_view batch_;
    const std::vector<Token>& tokens_;
    std::size_t next_ = 0;
    int depth_ = 0;
    int height_ = 0; // of the tallest subtree finished below the innermost Nesting
    std::vector<int> literal_nodes_;
};

} // namespace tsql
