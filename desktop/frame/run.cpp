// Starts the desktop: application, theme, login, frame; or takes one picture.
#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QTimer>

#include <cstdio>

#include "desktop/desktop.h"
#include "desktop/dialogs/login_dialog.h"
#include "desktop/dialogs/message_dialog.h"
#include "desktop/dialogs/progress_dialog.h"
#include "desktop/frame/desktop_interface.h"
#include "desktop/frame/few_colours.h"
#include "desktop/frame/main_window.h"
#include "desktop/frame/snapshot.h"
#include "desktop/theme/text.h"
#include "desktop/theme/theme.h"
#include "host/contract/function_table.h"
#include "host/ports/host.h"

namespace desktop {
namespace {

const std::string settings_section = "Desktop";

// The window opens as large as it was left.
void restore_size(MainWindow& window) {
    const host::SettingsStore* settings = host::the_host().settings;
    const QString kept = settings ? qt(settings->read(settings_section, "size", "")) : QString();
    const QStringList parts = kept.split('x');
    window.resize(parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize(1440, 900));
}

void keep_size(const MainWindow& window) {
    if (host::SettingsStore* settings = host::the_host().settings)
        settings->write(settings_section, "size",
                        std::to_string(window.width()) + "x" + std::to_string(window.height()));
}

int take_picture(MainWindow& window, const Screenshot& wanted) {
    window.resize(wanted.width, wanted.height);
    window.show();
    bool written = false;
    // From the event loop, so that modal forms can stand while the picture is taken.
    QTimer::singleShot(0, &window, [&] {
        if (const host::Function* function = host::function_of(wanted.function))
            window.open(*function);
    });
    press_keys_then(wanted.keys, [&] {
        written = with_few_colours(snapshot(window)).save(qt(wanted.file), "PNG", 0);
        QApplication::exit(); // ends modal loops too: everybody leaves in order
    });
    QApplication::exec();
    return written ? 0 : 1;
}

// The host speaks to the person through the desktop while it runs, and to nobody afterwards: forms
// that are still open when it ends go without it.
class AtWork {
public:
    explicit AtWork(DesktopInterface& interface) { host::the_host().ui = &interface; }
    ~AtWork() { host::the_host().ui = nullptr; }
    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;
};

} // namespace

int run(int argc, char** argv, const DesktopServices& services) {
    QApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("帐房"));
    apply_theme(application);
    DesktopInterface interface;
    const AtWork at_work(interface);
    const std::string company = services.books ? services.books().company : "";
    if (services.log_in && !services.screenshot &&
        !log_in(company, services.last_user, services.log_in))
        return 0;
    MainWindow window(services);
    interface.set_window(&window);
    if (services.screenshot) return take_picture(window, *services.screenshot);
    restore_size(window);
    window.show();
    const int status = QApplication::exec();
    keep_size(window);
    return status;
}

void work_with_progress(int argc, char** argv,
                        const std::function<void(const ReportProgress& report)>& work) {
    QApplication application(argc, argv);
    apply_theme(application);
    ProgressDialog dialog;
    work([&dialog](const std::string& what, std::int64_t done, std::int64_t total) {
        return dialog.report(what, done, total);
    });
}

void tell(int argc, char** argv, const std::string& sentence) {
    QApplication application(argc, argv);
    apply_theme(application);
    show_message(QStringLiteral("帐房"), sentence, nullptr);
}

int show_failure(int argc, char** argv, const std::string& sentence) {
    QApplication application(argc, argv);
    apply_theme(application);
    show_trouble(QStringLiteral("帐房"), sentence);
    return 1;
}

} // namespace desktop
