// The bottom line of the frame: what is going on, and whose books these are.
#pragma once

#include <QWidget>

#include "desktop/desktop.h"

namespace desktop {

class StatusLine : public QWidget {
public:
    explicit StatusLine(QWidget* parent);
    void show_books(const BooksLabel& books, const std::string& period);
    void say(const QString& text); // at the left; empty: "就绪"

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Part {
        std::string icon;
        QString label, text, after;
    };
    int paint_part(QPainter& painter, const Part& part, int right) const;
    QString said_;
    std::vector<Part> parts_;
};

} // namespace desktop
