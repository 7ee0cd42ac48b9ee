// A file that takes its final name only when it is complete.
#pragma once

#include <string>

namespace app {

// Writes go to a file beside the target; publish() gives it the target's name. Destroyed before
// that, it leaves nothing behind, whatever went wrong.
//
//     PendingFile pending("/books/a.zf");       // throws Refusal when a.zf exists
//     … make pending.path() …
//     pending.publish();
class PendingFile {
public:
    explicit PendingFile(std::string target);
    ~PendingFile();
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    const std::string& path() const { return path_; }
    // Makes the content durable and names it. Throws Refusal when the target has come into being
    // meanwhile; an existing file is never replaced.
    void publish();

private:
    void remove_leavings() const;

    std::string target_;
    std::string path_;
};

} // namespace app
