// The shade over a window that waits for a dialog.
#pragma once

#include <QPointer>
#include <QWidget>

namespace desktop {

// Lies over the whole window of `below` while it lives; nothing when there is no window.
class Veil {
public:
    explicit Veil(QWidget* below);
    ~Veil();
    Veil(const Veil&) = delete;
    Veil& operator=(const Veil&) = delete;

private:
    QPointer<QWidget> shade_;
};

} // namespace desktop
