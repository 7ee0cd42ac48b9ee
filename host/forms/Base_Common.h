// What every form of the suite shares: its function code, parameters handed on, common checks.
#pragma once

#include <array>

#include "host/contract/U_glo.h"
#include "host/contract/U_dataop.h"
#include "host/contract/U_function.h"
#include "host/dataset/client_dataset.h"
#include "host/forms/form.h"

namespace host {

class TFrm_Base_Common : public TForm {
public:
    explicit TFrm_Base_Common(TForm* parent);

    virtual void SetUserParam(const std::string& p1, const std::string& p2, const std::string& p3,
                              const std::string& p4, const std::string& p5, const std::string& p6);
    virtual void SetFormParam(const std::string& p1, const std::string& p2, const std::string& p3,
                              const std::string& p4, const std::string& p5, const std::string& p6);
    virtual void SetBodyParam(const std::array<std::string, 17>& params);

    // The system parameter of that name: "function", "user", "user name", "company", "today",
    // "period" and "first period" of the books; "" for any other.
    std::string Getsysinfo(const std::string& name) const;

    // Function code as text; the first argument of the data operations.
    std::string FunctionCode;

    // A blank, a text that is no date, a code that is no identifier: message with the label, focus
    // back, Abort().
    void CheckBlank(TWinControl& control, const std::string& label);
    void CheckDate(TDateEdit& control, const std::string& label);
    void CheckId(TEdit& control, const std::string& label);

    // Date shortcuts of the menu 时段选择 on this form's BDATE and EDATE.
    void setdate02click(); // this month
    void setdate04click(); // last month
    void setdate06click(); // this year

    // Leaving through 取消 must not be held up by a field's checks.
    bool leaving_by_cancel() const; // FocusTarget is btn_Cancel

    std::string RightsFunction() const override;

    // Small firms may take back what was posted and closed; strict books correct in red only.
    bool BooksAreStrict() const;

protected:
    // Takes the menu pick over: function code and parameters. Refuses with a message and Abort()
    // when the user may not open the function.
    void OpenFunction(const Trecord& record);
    // For buttons that are no actions: refuses with a message and Abort() when the user lacks the
    // right `action` ("post") on this function; `what` names the act in the message ("登帐").
    void RequireRight(const std::string& action, const std::string& what) const;
    // Saving what is new ("Add", "CopyAdd") needs the right to add, what was there ("Edit") the
    // right to change; other modes keep nothing of their own.
    void RequireSaveRight(const std::string& mode) const;
    bool Allowed(const std::string& action) const; // asks without a message

    // Every field is checked as if it had been left, in the order of the layout; refuses by
    // Abort().
    void LeaveAllFields();

    Trecord record_; // of the menu pick
    std::array<std::string, 6> user_params_, form_params_;
    std::array<std::string, 17> body_params_;

private:
    std::string read_period(int id) const;
    void set_dates(const std::string& range_name);
};

} // namespace host
