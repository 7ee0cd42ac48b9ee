// A push button whose caption is followed by its key in small type.
#pragma once

#include <QPushButton>

#include <string>

namespace desktop {

enum class ButtonLook { Plain, Primary, Tool, PrimaryTool };

// Paints itself: an icon, the caption, the key hint. Never takes the default role of Qt: which
// button Enter presses is the form's affair.
class HintedButton : public QPushButton {
public:
    HintedButton(QWidget* parent, ButtonLook look);
    void set_texts(const QString& caption, const QString& hint);
    void set_drawing(const std::string& icon) { icon_ = icon; }
    void set_look(ButtonLook look);
    // Tool buttons give up the hint first and the caption second when there is no room.
    enum class Detail { Full, NoHint, IconOnly };
    void set_detail(Detail detail);
    Detail detail() const { return detail_; }
    int width_at(Detail detail) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool is_tool() const { return look_ == ButtonLook::Tool || look_ == ButtonLook::PrimaryTool; }
    bool is_primary() const {
        return look_ == ButtonLook::Primary || look_ == ButtonLook::PrimaryTool;
    }
    void paint_ground(QPainter& painter);
    ButtonLook look_;
    Detail detail_ = Detail::Full;
    std::string icon_;
    QString caption_, hint_;
};

} // namespace desktop
