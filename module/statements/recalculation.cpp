// Recalculating a statement: passes over its lines, one query a formula.
#include "host/ports/host.h"
#include "host/values/errors.h"
#include "host/values/text.h"
#include "module/refuse.h"
#include "module/statements/statement_form.h"

namespace module {

namespace {

// The grids stay as they are while the lines are walked through.
class QuietLines {
public:
    QuietLines(TClientDataSet& lines, bool& quiet) : lines_(lines), quiet_(quiet) {
        lines_.DisableControls();
        quiet_ = true;
    }
    ~QuietLines() {
        quiet_ = false;
        lines_.EnableControls();
    }
    QuietLines(const QuietLines&) = delete;
    QuietLines& operator=(const QuietLines&) = delete;

private:
    TClientDataSet& lines_;
    bool& quiet_;
};

// Nothing counts as 0.00. Rounded once: which cent is the nearest is settled by the third decimal,
// so that 2.34499 is 2.34 and not 2.35 by way of 2.345.
std::optional<std::string> with_two_decimals(const std::string& number) {
    if (trimmed(number).empty()) return "0.00";
    if (!Amount::parse(number)) return std::nullopt;
    const std::size_t point = number.find('.');
    const bool finer = point != std::string::npos;
    return Amount::parse(finer ? number.substr(0, point + 4) : number)->to_text(2);
}

} // namespace

// A formula the database could not reckon, in the current line.
struct StatementForm::CellFailure {
    const StatementColumn& column;
    std::string reason;
};

// The person had enough of it, in this pass.
struct StatementForm::Stopped {
    int pass;
};

void StatementForm::Act_OtherExecute() {
    CommitActive();
    AdoQry_Main.LeaveRow();
    read_current_period(); // to be seen beside the period that the person asks for
    try {
        run_passes();
    } catch (const CellFailure& failure) {
        tell_failure(failure);
    } catch (const Stopped& stopped) {
        refuse("重算停在第 " + std::to_string(stopped.pass + 1) + " 遍,前面各遍的结果已经保存!" +
               "要得到完整的报表,请再执行一次重算。");
    }
    DBGridEhColumns2GetCellParams();
}

void StatementForm::run_passes() {
    const QuietLines quiet(AdoQry_Main, recalculating_);
    for (int pass = 0; pass < kind_.passes; ++pass) run_pass(pass);
    AdoQry_Main.First();
    if (!AdoQry_Main.IsEmpty()) tell_progress(kind_.passes - 1, AdoQry_Main.RecordCount());
}

void StatementForm::run_pass(int pass) {
    for (AdoQry_Main.First(); !AdoQry_Main.Eof(); AdoQry_Main.Next()) {
        if (!tell_progress(pass, AdoQry_Main.RecNo())) throw Stopped{pass};
        for (const StatementColumn& column : kind_.columns) {
            if (column.content != StatementContent::Amount) continue;
            const std::string formula = AdoQry_Main.FieldByName(column.formula_field).AsText();
            if (is_due(formula, pass)) reckon(column, formula);
        }
    }
    Act_SaveExecute();
    GetData();
}

bool StatementForm::tell_progress(int pass, int lines_done) const {
    const int lines = AdoQry_Main.RecordCount();
    const std::string what =
        "重算 第 " + std::to_string(pass + 1) + " / " + std::to_string(kind_.passes) + " 遍";
    return the_host().ui->progress(what, pass * lines + lines_done, kind_.passes * lines);
}

// The first pass reckons what comes from the ledger alone, the others what looks at other lines: a
// total of totals is right as soon as the pass before it settled what it adds up.
bool StatementForm::is_due(const std::string& formula, int pass) const {
    if (trimmed(formula).empty()) return false;
    return kind_.passes == 1 || refers_to_lines(formula) == (pass > 0);
}

void StatementForm::reckon(const StatementColumn& column, const std::string& formula) {
    const std::string query = cell_query(formula, kind_.words, {Edit1.Text, layout_number()});
    if (const std::string alien = what_is_no_expression(query); !alien.empty())
        throw CellFailure{column, "公式只能是一个算式,不能含有“" + alien + "”!"};
    try {
        opensql(work_, FunctionCode, query);
    } catch (const DataError& error) {
        throw CellFailure{column, error.cause.empty() || error.cause == error.what()
                                      ? error.what()
                                      : error.what() + ("\n" + error.cause)};
    }
    std::string amount = work_.IsEmpty() ? "" : work_.Fields().front()->AsText();
    if (kind_.two_decimals) {
        const auto rounded = with_two_decimals(amount);
        if (!rounded) throw CellFailure{column, "结果“" + amount + "”不是数字!"};
        amount = *rounded;
    }
    AdoQry_Main.Edit();
    AdoQry_Main.FieldByName(column.field).SetValue(amount);
}

void StatementForm::tell_failure(const CellFailure& failure) {
    (rb2.Checked ? DBGridEh1 : DBGridEh)
        .SelectField(rb2.Checked ? failure.column.formula_field : failure.column.field);
    DBGridEhColumns2GetCellParams();
    refuse("重算停在第 " + std::to_string(AdoQry_Main.RecNo() + 1) + " 行“" +
           item_of(failure.column) + "”的“" + replaced(failure.column.title, "|", " ") +
           "”,这个公式不能计算,请改正后再执行重算:\n" +
           AdoQry_Main.FieldByName(failure.column.formula_field).AsText() + "\n" + failure.reason);
}

} // namespace module
