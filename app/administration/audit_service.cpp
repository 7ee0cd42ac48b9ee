// Opens, audits, tells the person.
#include "app/administration/audit_service.h"

#include "app/refusal.h"
#include "automation/check/log_seal.h"
#include "host/ports/host.h"

namespace app {

namespace {

bool tell(const std::string& check, std::int64_t done, std::int64_t all) {
    host::UserInterface* ui = host::the_host().ui;
    return ui == nullptr || ui->progress("正在核对: " + check, done, all);
}

} // namespace

OpenForAudit& open_for_audit() {
    static OpenForAudit open;
    return open;
}

std::unique_ptr<engines::Session> open_books_again() {
    if (!open_for_audit()) throw Refusal("这里没有打开帐套文件!");
    return open_for_audit()();
}

std::optional<BooksAudit> audit_books_now() {
    const auto session = open_books_again();
    auto audit = automation::audit_books(*session, tell);
    if (!audit) return std::nullopt;
    return BooksAudit{std::move(*audit), automation::log_seal(*session)};
}

std::optional<LogAudit> check_log_now() {
    const auto session = open_books_again();
    const auto audit = automation::audit_log(*session, tell);
    if (!audit) return std::nullopt;
    LogAudit log;
    for (const automation::Finding& finding : audit->findings) log.findings.push_back(finding.text);
    log.seal = automation::log_seal(*session);
    return log;
}

} // namespace app
