// The person without a display: requests in, the same forms as on the desktop, answers out.
#pragma once

#include <deque>
#include <memory>
#include <nlohmann/json.hpp>

#include "automation/drive/open_forms.h"
#include "automation/drive/ports.h"
#include "host/ports/user_interface.h"

namespace automation {

// Made by the program as the host's user interface; everything runs on the thread that calls
// run(). A modal form opened by a request answers that request at once and reads the next ones
// itself; the request that ends the modal form is answered when what follows its end has run.
//
//     Driver driver({requests, answers, open_by_menu, &query_window});
//     host::the_host().ui = &driver;
//     driver.run();               // until "quit" or the end of the requests
class Driver final : public host::UserInterface {
public:
    explicit Driver(DriverPorts ports);
    ~Driver() override;

    void run();

    // The host's calls.
    void show(host::TForm& form) override;
    void show_modal(host::TForm& form) override;
    void forget(host::TForm& form) override;
    void inform(const std::string& text) override;
    bool ask(const std::string& text) override;
    void popup(host::TPopupMenu& menu, host::TControl& at) override;
    std::optional<std::string> choose_file_to_save(const std::string& title,
                                                   const std::string& suggested,
                                                   const std::vector<host::FileKind>&) override;
    bool progress(const std::string& what, std::int64_t done, std::int64_t total) override;
    // A document is printed into the file queued for it, as PDF.
    bool offers_printing() const override;
    void print(const host::PaperDocument& document, bool preview) override;
    void repaint_frame() override;

    // For the requests.
    const DriverPorts& ports() const { return ports_; }
    OpenForms& forms() { return forms_; }
    void queue_answer(bool yes) { answers_.push_back(yes); }
    void queue_file(std::string name) { files_.push_back(std::move(name)); }
    // While `deed` runs, the next choice of a file is `name`.
    void with_file(const std::string& name, const std::function<void()>& deed);
    void stop() { stopped_ = true; }
    // The last message shown and not yet told, "" when there is none.
    std::string last_message() const;

private:
    struct Unanswered;
    void serve(host::TForm* modal);
    void take(const std::string& line);
    void answer_now();

    DriverPorts ports_;
    OpenForms forms_;
    std::unique_ptr<Unanswered> unanswered_; // the request not yet answered
    nlohmann::json messages_ = nlohmann::json::array();
    std::deque<bool> answers_;
    std::deque<std::string> files_;
    std::optional<std::string> file_now_; // chosen before the queued ones
    std::int64_t requests_taken_ = 0;
    bool stopped_ = false;
};

} // namespace automation
