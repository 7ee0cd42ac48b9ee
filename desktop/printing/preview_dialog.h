// The preview: pages to turn, zoom, printing, PDF.
#pragma once

#include "desktop/dialogs/panel_dialog.h"

class QLabel;
class QScrollArea;

namespace host {
class PaperDocument;
}

namespace desktop {

class HintedButton;
class PageCanvas;

class PreviewDialog : public PanelDialog {
public:
    PreviewDialog(const host::PaperDocument& document, QWidget* over);
    int page() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override; // the wheel with Ctrl zooms

private:
    void build_tools();
    HintedButton* tool(const char* icon, const QString& caption, const QString& hint,
                       std::function<void()> work);
    void turn_to(int page);
    void zoom_to(double zoom);
    void show_place();
    void print();
    void save_pdf();

    const host::PaperDocument& document_;
    PageCanvas* canvas_;
    QScrollArea* area_;
    QLabel* place_;
    HintedButton* back_ = nullptr;
    HintedButton* forward_ = nullptr;
    bool shown_ = false;
};

} // namespace desktop
