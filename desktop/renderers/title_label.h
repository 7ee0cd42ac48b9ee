// The name of a document over its double rule.
#pragma once

#include <QWidget>

namespace desktop {

// Stands on `page` and gives its room to the fields beside it where the page is narrow: the tab
// names the document too.
class TitleLabel : public QWidget {
public:
    TitleLabel(const QString& text, QWidget* page);
    QSize sizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void give_way();
    QString text_;
};

} // namespace desktop
