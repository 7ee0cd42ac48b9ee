// Quiet text with keys drawn as caps: "[Enter] 下一格   [F4] 选择".
#pragma once

#include <QWidget>

namespace desktop {

// Words in square brackets at most twelve characters long are keys; the rest is text.
class HintLine : public QWidget {
public:
    HintLine(const QString& text, QWidget* parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Run {
        QString text;
        bool key = false;
        int width = 0;
    };
    std::vector<Run> runs_;
};

} // namespace desktop
