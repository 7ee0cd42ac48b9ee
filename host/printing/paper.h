// What stands on printed pages: lines and texts in boxes, measured on the paper.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/controls/alignment.h"

namespace host {

// Lengths are hundredths of a millimetre, places are counted from the upper left corner of the
// sheet of paper as it is read.
struct PaperSize {
    int width = 21000;
    int height = 29700;
};

struct PaperBox {
    int left = 0, top = 0, width = 0, height = 0;
    int right() const { return left + width; }
    int bottom() const { return top + height; }
};

enum class Ink { Black, Grey, Pale, Red };

// Stands in the middle of its box's height. What is too long for the box is set smaller, then in
// two lines; nothing is cut without the mark of an ellipsis.
struct PaperText {
    PaperBox box;
    std::string text;
    Alignment align = Alignment::Left;
    int size = 90; // tenths of a point
    bool bold = false;
    bool serif = false; // the printed words of a form; what was written into it is sans
    Ink ink = Ink::Black;
    int spacing = 0;      // between characters
    bool upright = false; // characters one below the other
};

struct PaperLine {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    int weight = 12;
    Ink ink = Ink::Black;
};

struct PaperPage {
    std::vector<PaperLine> lines;
    std::vector<PaperText> texts;

    void across(int x1, int x2, int y, int weight, Ink ink = Ink::Black) {
        lines.push_back({x1, y, x2, y, weight, ink});
    }
    void down(int x, int y1, int y2, int weight, Ink ink = Ink::Black) {
        lines.push_back({x, y1, x, y2, weight, ink});
    }
};

// Pages made one by one when they are asked for. A document may read its form's data while it is
// used: it lives no longer than the form stands still.
class PaperDocument {
public:
    virtual ~PaperDocument() = default;
    virtual std::string title() const = 0; // names the print job and the file
    virtual PaperSize size() const = 0;    // of every page
    virtual int page_count() const = 0;
    virtual PaperPage page(int number) const = 0; // from 0
};

} // namespace host
