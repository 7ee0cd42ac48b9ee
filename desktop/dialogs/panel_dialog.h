// What every dialog of the desktop looks like: a caption bar, a body, buttons at the bottom.
#pragma once

#include <QDialog>

#include <functional>

class QVBoxLayout;

namespace desktop {

// Has no window frame of the system; the caption bar moves it and holds the cross. Opens in the
// middle of the window it stands over, which is veiled meanwhile.
class PanelDialog : public QDialog {
public:
    PanelDialog(const QString& caption, QWidget* over, bool bold_caption = true);
    QVBoxLayout* body() const { return body_; }
    // Stands until it is done; the windows below show that they wait.
    int run();

protected:
    void add_rule(); // below what is said, above the buttons
    // The cross and Esc; dialogs that ask first override it.
    virtual void leave() { reject(); }
    void reject() override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QRect cross() const;
    QString caption_;
    bool bold_;
    QVBoxLayout* body_;
    QPoint grip_;
    bool dragging_ = false;
};

// The window a new dialog stands over: the modal one in front, else the frame.
QWidget* window_in_front();

} // namespace desktop
