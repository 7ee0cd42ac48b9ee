// Holds the open forms in tabs and passes what the person picks to them.
#include "desktop/frame/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QPainter>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include "desktop/dialogs/message_dialog.h"
#include "desktop/frame/brand.h"
#include "desktop/frame/menus.h"
#include "desktop/frame/status_line.h"
#include "desktop/frame/tab_strip.h"
#include "desktop/navigation/navigation_panel.h"
#include "desktop/overview/figures.h"
#include "desktop/overview/overview_page.h"
#include "desktop/renderers/form_view.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/contract/function_table.h"
#include "host/forms/event_gate.h"
#include "host/forms/form.h"
#include "host/ports/host.h"

namespace desktop {
namespace {

// The function whose entry is marked in the navigation: the form's own, or its opener's.
std::string function_in_front(const host::TForm* form) {
    for (const host::TForm* up = form; up; up = up->Parent())
        if (up->Tag != 0) return std::to_string(up->Tag);
    return form ? form->RightsFunction() : std::string();
}

} // namespace

MainWindow::MainWindow(const DesktopServices& services)
    : services_(services), tabs_(new TabStrip(this)), pages_(new QStackedWidget(this)),
      navigation_(new NavigationPanel(services.has_function, this)),
      overview_(new OverviewPage(this)), status_(new StatusLine(this)) {
    setObjectName("frame");
    setMinimumSize(960, 600);
    lay_out(build_menus(*this));
    pages_->addWidget(overview_);
    tabs_->addTab(QStringLiteral("概览"));
    navigation_->on_open = [this](const host::Function& function) { open(function); };
    navigation_->on_leave = [this] { pages_->currentWidget()->setFocus(); };
    overview_->on_open = [this](int code) { open_function(code); };
    tabs_->on_close = [this](int index) { close_tab(index); };
    connect(tabs_, &QTabBar::currentChanged, this, [this](int index) { tab_chosen(index); });
    connect(tabs_, &QTabBar::tabMoved, this, [this](int from, int to) {
        QWidget* page = pages_->widget(from);
        pages_->removeWidget(page);
        pages_->insertWidget(to, page);
        pages_->setCurrentIndex(tabs_->currentIndex());
    });
    qApp->installEventFilter(this);
    refresh_books();
}

MainWindow::~MainWindow() { qApp->removeEventFilter(this); }

void MainWindow::lay_out(QMenuBar* menus) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new Brand(menus, this));
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(navigation_);
    auto* documents = new QVBoxLayout;
    documents->setSpacing(0);
    auto* strip = new TabBand(tabs_, this);
    documents->addWidget(strip);
    documents->addWidget(pages_, 1);
    middle->addLayout(documents, 1);
    column->addLayout(middle, 1);
    column->addWidget(status_);
}

// ---- forms in tabs ----

int MainWindow::index_of(const FormView& view) const {
    return pages_->indexOf(const_cast<FormView*>(&view));
}

bool MainWindow::has_form(const host::TForm& form) const {
    for (int i = 1; i < pages_->count(); ++i)
        if (static_cast<FormView*>(pages_->widget(i))->form() == &form) return true;
    return false;
}

void MainWindow::add_form(host::TForm& form) {
    for (int i = 1; i < pages_->count(); ++i)
        if (static_cast<FormView*>(pages_->widget(i))->form() == &form) {
            tabs_->setCurrentIndex(i);
            return;
        }
    auto* view = new FormView(form, pages_);
    const int index = pages_->addWidget(view);
    switching_ = true;
    tabs_->insertTab(index, qt(form.TabTitle()));
    switching_ = false;
    view->on_changed = [this, view] {
        refresh_tab(*view);
        follow_active();
    };
    refresh_tab(*view);
    tabs_->setCurrentIndex(index);
    tab_chosen(index);
}

void MainWindow::remove_form(host::TForm& form) {
    for (int i = 1; i < pages_->count(); ++i) {
        auto* view = static_cast<FormView*>(pages_->widget(i));
        if (view->form() != &form) continue;
        view->release();
        switching_ = true;
        pages_->removeWidget(view);
        tabs_->removeTab(i);
        switching_ = false;
        view->hide();
        view->deleteLater();
        // Back to the form this one was opened from, directly or over others, where it is still
        // there.
        for (host::TForm* up = form.Parent(); up; up = has_form(*up) ? nullptr : up->Parent())
            for (int j = 1; j < pages_->count(); ++j)
                if (static_cast<FormView*>(pages_->widget(j))->form() == up)
                    tabs_->setCurrentIndex(j);
        tab_chosen(tabs_->currentIndex());
        refresh_books();
        return;
    }
}

FormView* MainWindow::view_in_front() const {
    return pages_->currentIndex() <= 0 ? nullptr : static_cast<FormView*>(pages_->currentWidget());
}

void MainWindow::refresh_tab(FormView& view) {
    const int index = index_of(view);
    if (index <= 0 || !view.form()) return;
    const QString title = qt(view.form()->TabTitle());
    if (tabs_->tabText(index) != title) tabs_->setTabText(index, title);
    tabs_->set_unsaved(index, view.form()->Dirty());
}

void MainWindow::tab_chosen(int index) {
    if (switching_ || index < 0 || index >= pages_->count()) return;
    pages_->setCurrentIndex(index);
    FormView* view = view_in_front();
    host::TForm* form = view ? view->form() : nullptr;
    navigation_->show_active(function_in_front(form));
    if (form) {
        view->run([form] { form->Activate(); });
        view->setFocus();
        view->sync_focus();
    } else if (index == 0) {
        overview_->refresh();
        overview_->setFocus();
    }
    status_->say({});
}

// A form may bring another to the front by itself.
void MainWindow::follow_active() {
    host::TForm* active = host::the_host().active;
    FormView* front = view_in_front();
    if (!active || active->IsModal() || (front && front->form() == active)) return;
    for (int i = 1; i < pages_->count(); ++i)
        if (static_cast<FormView*>(pages_->widget(i))->form() == active &&
            tabs_->currentIndex() > 0)
            tabs_->setCurrentIndex(i);
}

void MainWindow::close_tab(int index) {
    if (index <= 0) return;
    tabs_->setCurrentIndex(index);
    auto* view = static_cast<FormView*>(pages_->widget(index));
    if (view->form()) view->run([view] { view->form()->Close(); });
}

// ---- what menus and keys ask for ----

void MainWindow::open_function(int code) {
    if (!services_.open_function) return;
    run_pick([this, code] { services_.open_function(code); });
}

void MainWindow::open(const host::Function& function) {
    if (function.host.empty()) return open_function(function.code);
    if (!services_.open_administration) return;
    run_pick([this, name = std::string(function.host)] { services_.open_administration(name); });
}

void MainWindow::run_pick(const std::function<void()>& pick) {
    host::enter_event(pick);
    FormView* view = view_in_front();
    if (view != nullptr) {
        view->sync_focus();
    } else {
        overview_->refresh(); // a dialog over it may have posted or closed
    }
    refresh_books();
}

void MainWindow::show_overview() { tabs_->setCurrentIndex(0); }
void MainWindow::close_in_front() { close_tab(pages_->currentIndex()); }
void MainWindow::find_function() { navigation_->find_function(); }

void MainWindow::step_tab(int by) {
    const int count = tabs_->count();
    tabs_->setCurrentIndex((tabs_->currentIndex() + by + count) % count);
}

void MainWindow::refresh_books() {
    const BooksLabel books = services_.books ? services_.books() : BooksLabel{};
    setWindowTitle(qt(books.company) + QStringLiteral(" - 帐房"));
    status_->show_books(books, read_current_period());
}

void MainWindow::say(const QString& text) { status_->say(text); }

void MainWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    pages_->currentWidget()->setFocus();
}

// Leaving asks every form that holds unsaved work, the last one first.
bool MainWindow::close_forms() {
    while (pages_->count() > 1) {
        const int before = pages_->count();
        close_tab(pages_->count() - 1);
        if (pages_->count() == before) return false;
    }
    return true;
}

void MainWindow::closeEvent(QCloseEvent* event) { event->setAccepted(close_forms()); }

void MainWindow::start_over(const std::string& books) {
    if (services_.open_books && close_forms()) services_.open_books(books);
}

// Nothing may hold the books while another file takes their place, so the window goes first.
void MainWindow::restore_from(const std::string& backup) {
    const QString title = QStringLiteral("从备份恢复");
    try {
        if (!ask_question(title, services_.restore_question(backup), this) || !close()) return;
    } catch (const std::exception& refusal) {
        return show_message(title, refusal.what(), this);
    }
    services_.restore(backup);
}

// A click beside every control of a form leaves the focus where the form has it.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate && watched == this)
        if (FormView* view = view_in_front()) view->sync_focus();
    return QWidget::eventFilter(watched, event);
}

void MainWindow::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), token::paper_1); }

} // namespace desktop
