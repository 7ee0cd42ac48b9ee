// A one-line edit with an optional small button inside its right edge.
#pragma once

#include <QLineEdit>

#include <functional>
#include <string>

namespace desktop {

// What the right edge holds: nothing, a drawing (calendar), a boxed button ("…"), or two arrows.
enum class EdgeButton { None, Plain, Boxed, Spin };

// Painting and hit-testing of the edge only; what a press means is the owner's.
class FieldEdit : public QLineEdit {
public:
    explicit FieldEdit(QWidget* parent);
    void set_edge(EdgeButton kind, const std::string& icon = "");
    std::function<void(bool upper)> on_edge; // `upper`: the upper arrow of a spin edge

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QRect edge() const;
    EdgeButton kind_ = EdgeButton::None;
    std::string icon_;
};

// The height every one-line control has.
void fix_height(QWidget* widget);

} // namespace desktop
