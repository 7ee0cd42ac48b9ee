// The top line with the seal and the menus, and the band the tabs stand in.
#pragma once

#include <QWidget>

class QMenuBar;

namespace desktop {

class TabStrip;

class Brand : public QWidget {
public:
    Brand(QMenuBar* menus, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

class TabBand : public QWidget {
public:
    TabBand(TabStrip* tabs, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace desktop
