// The Qt desktop: the frame window, and behind it every form drawn from its host controls.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace desktop {

// What the status bar and the title say about the open books.
struct BooksLabel {
    std::string company;   // "苏州嘉禾贸易有限公司"
    std::string user;      // name of the logged-in user
    std::string database;  // "jiahe.db"
    std::string place;     // "本机", or the server's name
    std::string mode;      // "小企业" or "严格": how corrections are made; empty: not told
};

// A picture of one function instead of a session: opens it, presses the keys, writes the PNG.
struct Screenshot {
    std::string function; // "661", "users"; empty: the overview
    std::string file;
    std::vector<std::string> keys; // "F3", "Enter"
    int width = 1440, height = 900;
};

// What the frame needs from the program around it. All functions run on the thread of the user
// interface; those that are absent leave their menu item out.
struct DesktopServices {
    std::function<BooksLabel()> books;            // asked after the login and after a change
    std::function<void(int code)> open_function;  // one menu pick
    std::function<void(const std::string& name)> open_administration; // one of the host's own
    // May the function ("661", "users") be opened? The others are shown pale. Absent: all may.
    std::function<bool(const std::string& key)> has_function;
    // Checks a login: "" lets in, anything else is the sentence to show. Absent: nothing is asked.
    std::function<std::string(const std::string& user, const std::string& password)> log_in;
    std::string last_user;
    std::vector<std::string> recent_books; // those that are open first
    std::function<void(const std::string& books)> open_books; // starts over with another set
    // Puts a backup in the place of the open books: what the person is asked before (throws
    // std::exception, whose text says why it cannot be), and what is noted once he agreed and the
    // window is closed. Whoever called run() carries it out then.
    std::function<std::string(const std::string& file)> restore_question;
    std::function<void(const std::string& file)> restore;
    std::optional<Screenshot> screenshot;
};

// Runs the desktop until its window is closed; the_host() must have its ports but for `ui`, which
// is set here. Returns the exit status of the program.
//
//     return desktop::run(argc, argv, {.books = ..., .open_function = ...});
int run(int argc, char** argv, const DesktopServices& services);

// Work before there is a frame: shows how far it has come as soon as it lasts longer than a moment.
// `report` answers false when the person asked to stop. What the work throws goes through.
using ReportProgress =
    std::function<bool(const std::string& what, std::int64_t done, std::int64_t total)>;
void work_with_progress(int argc, char** argv,
                        const std::function<void(const ReportProgress& report)>& work);

// Shows one sentence in a window of its own, while there is no frame.
void tell(int argc, char** argv, const std::string& sentence);

// The same for a program that cannot go on; returns 1.
int show_failure(int argc, char** argv, const std::string& sentence);

} // namespace desktop
