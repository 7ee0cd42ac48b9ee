// The frame: menus, navigation, the tabs with the open forms, the status line.
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

#include "desktop/desktop.h"

class QMenuBar;
class QStackedWidget;

namespace host {
struct Function;
class TForm;
}

namespace desktop {

class FormView;
class NavigationPanel;
class OverviewPage;
class StatusLine;
class TabStrip;

class MainWindow : public QWidget {
public:
    explicit MainWindow(const DesktopServices& services);
    ~MainWindow() override;

    void add_form(host::TForm& form);   // a new tab, in front; or the form's own tab again
    void remove_form(host::TForm& form);
    bool has_form(const host::TForm& form) const;
    FormView* view_in_front() const;    // null while the overview is
    void open_function(int code);       // one menu pick
    void open(const host::Function& function); // of the module or of the host
    void refresh_books();               // company, period, user
    void say(const QString& text);
    OverviewPage& overview() const { return *overview_; }
    NavigationPanel& navigation() const { return *navigation_; }
    const DesktopServices& services() const { return services_; }

    // The menus act on what is in front.
    void show_overview();
    void close_in_front();
    void step_tab(int by);
    void find_function();
    void start_over(const std::string& books); // with other books, or as somebody else
    void restore_from(const std::string& backup); // asks; the window then closes

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void run_pick(const std::function<void()>& pick);
    void lay_out(QMenuBar* menus);
    void tab_chosen(int index);
    void close_tab(int index);
    bool close_forms(); // false when somebody still works in one
    void follow_active();
    void refresh_tab(FormView& view);
    int index_of(const FormView& view) const;
    DesktopServices services_;
    TabStrip* tabs_;
    QStackedWidget* pages_;
    NavigationPanel* navigation_;
    OverviewPage* overview_;
    StatusLine* status_;
    bool switching_ = false;
};

} // namespace desktop
