// A key stroke: "F3", "Ctrl+P", "Enter", or one character.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

enum class KeyCode { None, Character, F1, F2, F3, F4, F5, F6, F7, F8, F9, F10, F11, F12, Enter, Tab,
                     Esc, Space, Insert, Delete, Backspace, Home, End, PageUp, PageDown, Up, Down,
                     Left, Right };

struct Key {
    KeyCode code = KeyCode::None;
    char32_t character = 0; // for Character: the typed one; with ctrl the upper-case letter
    bool ctrl = false, shift = false, alt = false;
    // "Ctrl+Delete", "F3", "a". nullopt for an unknown name.
    static std::optional<Key> parse(std::string_view text);
    std::string to_text() const;
    friend bool operator==(const Key&, const Key&) = default;
};

} // namespace host
