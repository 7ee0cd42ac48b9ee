// Read the operation log: who changed what, when, and the statements that did it.
#include "app/administration/operation_log.h"

#include "app/administration/audit_service.h"
#include "app/administration/log_words.h"
#include "app/administration/operation_log_filter.h"
#include "host/ports/host.h"

namespace app {

using namespace host;

namespace {

constexpr int rows_at_first = 500;
constexpr int rows_at_most = 5'000'000;
constexpr int growth = 10;

} // namespace

// ---- opening ----

TFrm_OperationLog::TFrm_OperationLog(TForm* frame) : TFrm_Base_Qry(frame), limit_(rows_at_first) {
    FunctionCode = "log";
    Caption = "操作日志";
    KeyField = "ID";
    OrderText = " ORDER BY SYS_LOG.ID DESC";
    AddColumn("ID", "序号", 9).Align = Alignment::Right;
    AddColumn("LOG_TIME", "时间", 20);
    AddColumn("USER_ID", "用户", 12);
    AddColumn("USER_NAME", "姓名", 12);
    AddColumn("FUNCTION_CODE", "功能", 22);
    AddColumn("OPERATION", "操作", 10);
    AddColumn("DOC_KEY", "单据", -1);
    AdoQry_Main.DefineField("FUNCTION_CODE", FieldType::Text).OnGetText =
        [](const TField& field) { return function_caption(field.AsText()); };
    AdoQry_Main.DefineField("OPERATION", FieldType::Text).OnGetText =
        [](const TField& field) { return operation_caption(field.AsText()); };
    AdoQry_Main.AfterScroll = [this] { show_statements(); };
    Act_Other.Caption = "更多";
    Act_Other.Visible = true;
    Act_Check.OnExecute = [this] { Act_CheckExecute(); };
    BATCH.ReadOnly = true;
    layout = Rows({ToolBar({&Act_Locate, &Act_Refresh, &Act_Other, nullptr, &Act_Check, nullptr,
                            &Act_Print, &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Control(ConditionLabel), Splitter(Rest(DBGridEh), Rest(BATCH), 70)});
}

TFrm_OperationLog::~TFrm_OperationLog() = default;

void TFrm_OperationLog::InitForm(const Trecord& record) {
    TFrm_Base_Qry::InitForm(record);
    filter_ = std::make_unique<TFrm_LogFilter>(this);
    filter_->InitForm();
    if (!filter_->Preset()) return;
    SqlText = filter_->ResultText;
    GetData();
}

TFrm_Sys_Filter* TFrm_OperationLog::Filter() { return filter_.get(); }

// ---- lines ----

std::string TFrm_OperationLog::select() const {
    return "SELECT TOP " + std::to_string(limit_) +
           " SYS_LOG.ID,SYS_LOG.LOG_TIME,SYS_LOG.USER_ID,SYS_USER.USER_NAME,"
           "SYS_LOG.FUNCTION_CODE,SYS_LOG.OPERATION,SYS_LOG.DOC_KEY FROM SYS_LOG "
           "LEFT JOIN SYS_USER ON SYS_USER.USER_ID=SYS_LOG.USER_ID";
}

void TFrm_OperationLog::GetData() {
    opensql(AdoQry_Main, FunctionCode, select() + SqlText + " ORDER BY SYS_LOG.ID DESC");
    show_how_many();
    shown_.clear();
    show_statements();
}

void TFrm_OperationLog::show_how_many() {
    const int rows = AdoQry_Main.RecordCount();
    const std::string count = std::to_string(rows);
    Act_Other.Enabled = rows == limit_;
    ConditionLabel.Caption =
        filter_->Description + (rows == limit_ ? "最近 " + count + " 条,按 F7 看更多"
                                               : "共 " + count + " 条");
}

// Rows of books from a time when texts were not kept have none.
void TFrm_OperationLog::show_statements() {
    const std::string id = AdoQry_Main.IsEmpty() ? "" : AdoQry_Main.FieldByName("ID").AsText();
    if (id == shown_ && !id.empty()) return;
    shown_ = id;
    if (id.empty()) {
        BATCH.Text = "";
        return;
    }
    TClientDataSet text;
    opensql(text, FunctionCode, "SELECT BATCH FROM SYS_LOG_TEXT WHERE ID=" + id);
    BATCH.Text = text.IsEmpty() ? "(这条记录没有保存内容)"
                                : statement_a_line(text.FieldByName("BATCH").AsText());
}

// ---- what the user does ----

void TFrm_OperationLog::Act_LocateExecute() {
    const int before = limit_;
    limit_ = rows_at_first;
    try {
        TFrm_Base_Qry::Act_LocateExecute();
    } catch (...) {
        limit_ = before;
        throw;
    }
    show_how_many();
}

void TFrm_OperationLog::Act_OtherExecute() {
    const int before = limit_;
    limit_ = std::min(limit_ * growth, rows_at_most);
    try {
        GetData();
    } catch (...) {
        limit_ = before; // the rows shown are still those of before
        throw;
    }
}

void TFrm_OperationLog::Act_CheckExecute() {
    const auto log = check_log_now();
    if (!log) return DISPINFO("核对已取消。", 5), void();
    if (log->findings.empty())
        return DISPINFO("操作日志完整,没有被改动过。封条: " + log->seal, 5), void();
    std::string text = "操作日志有 " + std::to_string(log->findings.size()) + " 处问题:";
    for (std::size_t i = 0; i < log->findings.size() && i < 10; ++i)
        text += "\n" + log->findings[i];
    if (log->findings.size() > 10) text += "\n…(全部问题见“核对帐套”)";
    DISPINFO(text, 5);
}

} // namespace app
