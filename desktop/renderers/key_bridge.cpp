// The table of keys both sides know.
#include "desktop/renderers/key_bridge.h"

#include <QKeyEvent>

namespace desktop {
namespace {

using host::KeyCode;

KeyCode code_of(int key) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return static_cast<KeyCode>(static_cast<int>(KeyCode::F1) + key - Qt::Key_F1);
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return KeyCode::Enter;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return KeyCode::Tab;
    case Qt::Key_Escape: return KeyCode::Esc;
    case Qt::Key_Space: return KeyCode::Space;
    case Qt::Key_Insert: return KeyCode::Insert;
    case Qt::Key_Delete: return KeyCode::Delete;
    case Qt::Key_Backspace: return KeyCode::Backspace;
    case Qt::Key_Home: return KeyCode::Home;
    case Qt::Key_End: return KeyCode::End;
    case Qt::Key_PageUp: return KeyCode::PageUp;
    case Qt::Key_PageDown: return KeyCode::PageDown;
    case Qt::Key_Up: return KeyCode::Up;
    case Qt::Key_Down: return KeyCode::Down;
    case Qt::Key_Left: return KeyCode::Left;
    case Qt::Key_Right: return KeyCode::Right;
    default: return KeyCode::None;
    }
}

} // namespace

host::Key to_key(const QKeyEvent& event) {
    host::Key key;
    const auto modifiers = event.modifiers();
    key.ctrl = modifiers & Qt::ControlModifier;
    key.alt = modifiers & Qt::AltModifier;
    key.shift = modifiers & Qt::ShiftModifier;
    key.code = code_of(event.key());
    if (key.code == KeyCode::Space) key.character = U' ';
    if (key.code != KeyCode::None) return key;
    if (key.ctrl && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) {
        key.code = KeyCode::Character;
        key.character = static_cast<char32_t>(event.key());
        return key;
    }
    const auto text = event.text().toUcs4();
    if (key.ctrl || text.size() != 1 || text[0] < 32 || text[0] == 127) return {};
    key.code = KeyCode::Character;
    key.character = text[0];
    key.shift = false; // it is in the character already
    return key;
}

bool is_plain_character(const host::Key& key) {
    return (key.code == KeyCode::Character || key.code == KeyCode::Space) && !key.ctrl && !key.alt;
}

} // namespace desktop
