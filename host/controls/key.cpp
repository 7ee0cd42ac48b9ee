// Names of keys.
#include "host/controls/key.h"

#include <array>

#include "host/values/text.h"

namespace host {

namespace {

struct NamedKey {
    const char* name;
    KeyCode code;
};

constexpr std::array named_keys = {
    NamedKey{"F1", KeyCode::F1},           NamedKey{"F2", KeyCode::F2},
    NamedKey{"F3", KeyCode::F3},           NamedKey{"F4", KeyCode::F4},
    NamedKey{"F5", KeyCode::F5},           NamedKey{"F6", KeyCode::F6},
    NamedKey{"F7", KeyCode::F7},           NamedKey{"F8", KeyCode::F8},
    NamedKey{"F9", KeyCode::F9},           NamedKey{"F10", KeyCode::F10},
    NamedKey{"F11", KeyCode::F11},         NamedKey{"F12", KeyCode::F12},
    NamedKey{"Enter", KeyCode::Enter},     NamedKey{"Tab", KeyCode::Tab},
    NamedKey{"Esc", KeyCode::Esc},         NamedKey{"Space", KeyCode::Space},
    NamedKey{"Insert", KeyCode::Insert},   NamedKey{"Delete", KeyCode::Delete},
    NamedKey{"Backspace", KeyCode::Backspace}, NamedKey{"Home", KeyCode::Home},
    NamedKey{"End", KeyCode::End},         NamedKey{"PageUp", KeyCode::PageUp},
    NamedKey{"PageDown", KeyCode::PageDown}, NamedKey{"Up", KeyCode::Up},
    NamedKey{"Down", KeyCode::Down},       NamedKey{"Left", KeyCode::Left},
    NamedKey{"Right", KeyCode::Right},
};

bool take_prefix(std::string_view& text, std::string_view prefix) {
    if (text.size() <= prefix.size() || !starts_with_text(text, prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

} // namespace

std::optional<Key> Key::parse(std::string_view text) {
    Key key;
    for (bool found = true; found;) {
        found = false;
        if (take_prefix(text, "Ctrl+")) key.ctrl = found = true;
        if (take_prefix(text, "Shift+")) key.shift = found = true;
        if (take_prefix(text, "Alt+")) key.alt = found = true;
    }
    for (const NamedKey& named : named_keys) {
        if (!same_text(text, named.name)) continue;
        key.code = named.code;
        return key;
    }
    const std::u32string characters = to_characters(text);
    if (characters.size() != 1 || characters[0] < 0x20) return std::nullopt;
    key.character = characters[0];
    key.code = key.character == ' ' ? KeyCode::Space : KeyCode::Character;
    if (key.code == KeyCode::Space) key.character = 0;
    if ((key.ctrl || key.alt) && key.character >= 'a' && key.character <= 'z')
        key.character -= 'a' - 'A';
    return key;
}

std::string Key::to_text() const {
    std::string text;
    if (ctrl) text += "Ctrl+";
    if (shift) text += "Shift+";
    if (alt) text += "Alt+";
    if (code == KeyCode::Character) return text + to_utf8(character);
    for (const NamedKey& named : named_keys)
        if (named.code == code) return text + named.name;
    return text;
}

} // namespace host
