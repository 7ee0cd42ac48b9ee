// The door to the person: the desktop draws behind it, the automation interface speaks for it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host {

class PaperDocument;
class TForm;
class TControl;
class TPopupMenu;

enum class MessageKind { Question = 2, Information = 5 };

// One of the kinds of file a person may choose from.
struct FileKind {
    std::string caption; // "Excel 工作簿"
    std::string ending;  // "xlsx"
};

// All calls come from, and return on, the one thread of the user interface.
class UserInterface {
public:
    virtual ~UserInterface() = default;

    // A modeless child of the frame appears; returns at once.
    virtual void show(TForm& form) = 0;
    // The form stands over everything else until its ModalResult is not 0 or it is closed;
    // returns then. Called again while a modal form stands, it nests.
    virtual void show_modal(TForm& form) = 0;
    // The form is about to go (closed or destroyed); the renderer drops what it drew.
    virtual void forget(TForm& form) = 0;

    virtual void inform(const std::string& text) = 0; // waits until it was read
    virtual bool ask(const std::string& text) = 0;    // true for yes
    virtual void popup(TPopupMenu& menu, TControl& at) = 0;
    // The path of a file that may be written over, ending as one of `kinds` when the person typed
    // no ending; `suggested` is a name without a folder. Nothing when he changed his mind.
    virtual std::optional<std::string> choose_file_to_save(const std::string& title,
                                                           const std::string& suggested,
                                                           const std::vector<FileKind>& kinds) = 0;
    // Long work: called with what is done and of how much; answers false when the person asked to
    // stop. `total` 0 hides the bar.
    virtual bool progress(const std::string& what, std::int64_t done, std::int64_t total) = 0;
    // Can documents be printed and previewed? The forms' actions are hidden otherwise.
    virtual bool offers_printing() const { return false; }
    // Returns when the document is no longer needed: printed, given up, or the preview closed.
    virtual void print(const PaperDocument&, bool /*preview*/) {}
    // For Ctrl+C; an interface without a clipboard forgets it.
    virtual void set_clipboard(const std::string&) {}
    // The frame repaints before a modal dialog covers it.
    virtual void repaint_frame() = 0;
};

} // namespace host
