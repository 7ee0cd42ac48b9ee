// Two parts with a movable bar between them.
#pragma once

#include <QSplitter>

namespace desktop {

class Splitter : public QSplitter {
public:
    Splitter(Qt::Orientation orientation, QWidget* parent);
    // The first part gets `percent` of the room; once, before it is shown.
    void share(int percent);

protected:
    QSplitterHandle* createHandle() override;
};

} // namespace desktop
