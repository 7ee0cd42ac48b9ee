// A document opened to be changed: saved only while nobody else changed it.
#pragma once

#include <string>
#include <vector>

#include "host/contract/U_dataop.h"
#include "host/dataset/client_dataset.h"
#include "module/host_names.h"

namespace module {

// Two people open the same document; the first saves. The second must be told, or what the first
// wrote would be gone without a word.
//
//     opened_.remember(AdoQry_Head, AdoQry_Main, head_select, line_select);   // in OpenNoid
//     if (opened_.save(FunctionCode, key, Mode, batch) == "Y") Saved(key);     // in SaveData
class OpenedDocument {
public:
    // What was read, and the statements that read it.
    void remember(const TClientDataSet& head, const TClientDataSet& lines,
                  const std::string& head_select, const std::string& line_select);

    // Sends the batch; in mode "Edit" only if the document still is as it was opened.
    std::string save(const std::string& function, const std::string& key, const std::string& mode,
                     const std::string& batch) const;

private:
    // One statement, and what it answered for the fields that the form holds.
    struct Reading {
        std::string select;
        std::vector<std::string> fields;
        std::string answer;
    };
    static Reading reading(const TClientDataSet& rows, const std::string& select);
    std::string why_changed_meanwhile(const std::string& function) const;
    Reading head_, lines_;
};

} // namespace module
