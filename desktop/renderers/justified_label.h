// A label whose inner blanks spread its characters over a common width ("单    号").
#pragma once

#include <QLabel>

namespace desktop {

class JustifiedLabel : public QLabel {
public:
    JustifiedLabel(const QString& text, QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool spread() const; // Chinese characters with blanks between them
};

} // namespace desktop
