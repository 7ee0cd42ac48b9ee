// What the opening amounts of customers and suppliers share: typed, checked, saved as a whole.
#pragma once

#include "host/forms/Base_Inner.h"
#include "module/host_names.h"

namespace module {

// How the two sides differ.
struct OpeningAmountsKind {
    const char* caption;
    const char* table; // of the parties
    const char* query;
    struct {
        const char *code, *advance, *opening, *difference, *open, *advance_left, *net;
    } titles;
    const char *negative_advance, *negative_opening; // told when saved so
};

class OpeningAmounts : public TFrm_Base_Inner {
public:
    // What the user sees.
    TLabel ReadOnlyHint{this, "ReadOnlyHint"}; // once the books have started

    // What the user does.
    void AdoQry_MainBEGINYS_MONEYSetText(TField& field, const std::string& typed);

    // Steps of every grid edited in place that differ here.
    void InitForm(const Trecord& record) override;
    void GetData() override;
    void SaveData() override;

protected:
    OpeningAmounts(TForm* parent, const OpeningAmountsKind& kind);

private:
    void build_columns();
    void set_read_only(bool started);
    bool books_started() const;
    void refuse_negative_amounts();

    const OpeningAmountsKind& kind_;
};

} // namespace module
