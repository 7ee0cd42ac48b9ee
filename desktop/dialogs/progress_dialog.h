// How far long work has come, and a button to stop it.
#pragma once

#include <QElapsedTimer>

#include <memory>
#include <string>

class QLabel;
class QProgressBar;

namespace desktop {

class PanelDialog;
class Veil;

// Appears only when the work lasts longer than a moment, and goes when it is done.
class ProgressDialog {
public:
    ProgressDialog();
    ~ProgressDialog();
    // False when the person asked to stop. `total` 0 hides the bar; done == total ends it.
    bool report(const std::string& what, std::int64_t done, std::int64_t total);
    void end();

private:
    void open();
    std::unique_ptr<Veil> veil_;
    std::unique_ptr<PanelDialog> dialog_;
    QLabel* words_ = nullptr;
    QLabel* count_ = nullptr;
    QProgressBar* bar_ = nullptr;
    QElapsedTimer since_;
    bool stopped_ = false;
};

} // namespace desktop
