// One sentence and its button, or a question with yes and no.
#pragma once

#include <QWidget>

#include <string>

namespace desktop {

// `title` is the caption of the form the message comes from. Both wait until they are answered.
void show_message(const QString& title, const std::string& text, QWidget* over);
// For a program that cannot go on: the same with a warning, in a window of its own.
void show_trouble(const QString& title, const std::string& text);
// True for yes. No is the answer of Enter and Esc: it is the one that loses nothing.
bool ask_question(const QString& title, const std::string& text, QWidget* over);

} // namespace desktop
