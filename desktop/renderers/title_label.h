// The name of a document over its double rule.
#pragma once

#include <QWidget>

namespace desktop {

class TitleLabel : public QWidget {
public:
    TitleLabel(const QString& text, QWidget* parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
};

} // namespace desktop
