// The person without a display: requests in, the same forms as on the desktop, answers out.
#include "automation/drive/driver.h"

#include "automation/drive/request.h"
#include "automation/drive/requests/table.h"
#include "host/forms/form.h"
#include "host/ports/document_files.h"
#include "host/ports/host.h"
#include "host/printing/paper.h"

namespace automation {

using nlohmann::json;

struct Driver::Unanswered {
    std::int64_t number = 0;
    json body = json::object(); // what the answer holds beside what every answer holds
};

Driver::Driver(DriverPorts ports) : ports_(std::move(ports)) {}

Driver::~Driver() = default;

void Driver::run() {
    host::the_host().record_statements = true;
    serve(nullptr);
}

// ---- the loop

// Serves requests until they end or, inside a modal form, until that form has ended. The request
// that ended it stays unanswered: the caller of the modal form goes on first.
void Driver::serve(host::TForm* modal) {
    const auto ended = [&] {
        return modal != nullptr && (modal->ModalResult.get() != host::mrNone || modal->Closed());
    };
    while (!ended()) {
        if (stopped_) return;
        const auto line = ports_.requests.next();
        if (!line) {
            stopped_ = true;
            return;
        }
        if (line->find_first_not_of(" \t") == std::string::npos) continue;
        take(*line);
        if (ended()) return;
        answer_now();
    }
}

void Driver::take(const std::string& line) {
    const std::int64_t number = ++requests_taken_;
    unanswered_ = std::make_unique<Unanswered>();
    unanswered_->number = number;
    json body;
    try {
        body = carry_out(*this, Request::parse(line));
    } catch (const Refusal& refusal) {
        body = json{{"ok", false}, {"error", refusal.what()}};
    } catch (const std::exception& failure) {
        body = json{{"ok", false}, {"error", std::string("the request failed: ") + failure.what()}};
    }
    // Answered long ago when it opened a modal form; another request may wait in its place.
    if (unanswered_ && unanswered_->number == number) unanswered_->body = std::move(body);
}

void Driver::answer_now() {
    if (!unanswered_) return;
    const std::unique_ptr<Unanswered> request = std::move(unanswered_);
    const host::TForm* active = forms_.active();
    request->body.emplace("ok", true); // unless it was refused
    request->body["messages"] = std::exchange(messages_, json::array());
    request->body["active"] = active == nullptr ? json() : json(forms_.name_of(*active));
    ports_.answers.write(request->body.dump(-1, ' ', false, json::error_handler_t::replace));
}

// ---- forms

void Driver::show(host::TForm& form) {
    forms_.add(form, false);
}

void Driver::show_modal(host::TForm& form) {
    forms_.add(form, true);
    answer_now();
    serve(&form);
    if (form.ModalResult.get() == host::mrNone) form.ModalResult = host::mrCancel;
    forms_.remove(form);
}

void Driver::forget(host::TForm& form) {
    forms_.remove(form);
}

void Driver::repaint_frame() {}

// A context menu needs no drawing: its items are clicked by their names.
void Driver::popup(host::TPopupMenu&, host::TControl&) {}

// ---- what is shown and asked

void Driver::inform(const std::string& text) {
    messages_.push_back({{"text", text}, {"kind", 5}});
}

bool Driver::ask(const std::string& text) {
    messages_.push_back({{"text", text}, {"kind", 2}});
    if (answers_.empty()) return false;
    const bool yes = answers_.front();
    answers_.pop_front();
    return yes;
}

std::optional<std::string> Driver::choose_file_to_save(const std::string&, const std::string&,
                                                       const std::vector<host::FileKind>&) {
    if (file_now_) return std::exchange(file_now_, std::nullopt);
    if (files_.empty()) return std::nullopt;
    std::string file = std::move(files_.front());
    files_.pop_front();
    return file;
}

void Driver::with_file(const std::string& name, const std::function<void()>& deed) {
    file_now_ = name;
    try {
        deed();
    } catch (...) {
        file_now_.reset();
        throw;
    }
    file_now_.reset();
}

bool Driver::progress(const std::string&, std::int64_t, std::int64_t) {
    return true;
}

bool Driver::offers_printing() const {
    const host::DocumentFiles* files = host::the_host().files;
    return files != nullptr && files->offers_pdf();
}

void Driver::print(const host::PaperDocument& document, bool) {
    const auto file = choose_file_to_save("", "", {});
    if (!file) return inform("没有打印：请先用 answer 给出文件名!");
    const std::string trouble = host::the_host().files->write_pdf(document, *file);
    const std::string pages = std::to_string(document.page_count());
    inform(trouble.empty() ? "已打印 " + pages + " 页到 " + *file : trouble);
}

std::string Driver::last_message() const {
    return messages_.empty() ? std::string() : messages_.back().at("text").get<std::string>();
}

} // namespace automation
