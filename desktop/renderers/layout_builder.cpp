// The bands of a form from top to bottom: tool bar, fields, the grid that takes the rest, buttons.
#include "desktop/renderers/layout_builder.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/layout_parts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/tokens.h"
#include "host/controls/buttons.h"

namespace desktop {
namespace {

using host::LayoutNode;
using Kind = LayoutNode::Kind;

bool contains(const LayoutNode& node, Kind kind) {
    if (node.kind == kind) return true;
    return std::any_of(node.children.begin(), node.children.end(),
                       [kind](const LayoutNode& child) { return contains(child, kind); });
}

// A band with a rule above it.
class RuledBand : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(0, 0, width(), 1, token::rule_1);
    }
};

QMargins block_margins(FormKind kind) {
    switch (kind) {
    case FormKind::Dialog: return {24, 18, 24, 18};
    case FormKind::Document: return {16, 10, 16, 10};
    case FormKind::List: return {12, 2, 12, 2};
    }
    return {};
}

// Consecutive rows of fields form one block, so their labels line up.
void add_block(const std::vector<LayoutNode>& rows, QVBoxLayout& bands, FormView& view,
               FormKind kind) {
    if (rows.empty()) return;
    auto* column = new QVBoxLayout;
    column->setContentsMargins(block_margins(kind));
    column->setSpacing(kind == FormKind::Dialog ? 12 : token::gap);
    LayoutPlace place{view};
    place.in_rows = true;
    if (kind == FormKind::List) place.label_height = token::condition_line - 4;
    place.label_width = kind == FormKind::List ? 0 : shared_label_width(rows);
    for (const LayoutNode& row : rows) add_node(row, *column, place);
    bands.addLayout(column);
}

// A row of texts of which one takes the rest tells about the selected cell, such as its formula.
bool tells_about_a_cell(const LayoutNode& node) {
    const auto is_text = [](const LayoutNode& part) {
        return dynamic_cast<host::TLabel*>(part.control) != nullptr;
    };
    const auto takes_rest = [](const LayoutNode& part) { return part.width < 0; };
    const auto& parts = node.children;
    return node.kind == Kind::Columns && std::all_of(parts.begin(), parts.end(), is_text) &&
           std::any_of(parts.begin(), parts.end(), takes_rest);
}

// White as the grid below it; the cell's name stands over the row numbers.
class CellBand : public QWidget {
public:
    explicit CellBand(QWidget* parent) : QWidget(parent) { setFixedHeight(token::header + 4); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), token::paper_0);
        painter.fillRect(0, 0, token::row_numbers, height(), token::indigo_4);
        painter.fillRect(0, 0, width(), 1, token::rule_2);
        painter.fillRect(0, height() - 1, width(), 1, token::rule_2);
        painter.fillRect(token::row_numbers - 1, 0, 1, height(), token::rule_2);
        icons::paint(painter, "square-function",
                     QRect(token::row_numbers + 12, 0, 14, height()), 14, token::ink_3);
    }
};

void add_cell_band(const LayoutNode& node, QVBoxLayout& bands, FormView& view) {
    auto* band = new CellBand(&view);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(0, 0, 12, 0);
    row->setSpacing(token::gap);
    LayoutPlace place{view};
    place.formula = true;
    for (const LayoutNode& part : node.children) {
        place.quiet = part.kind == Kind::Control && &part == &node.children.back();
        add_node(part, *row, place);
        if (&part != &node.children.front()) continue;
        if (auto* name = qobject_cast<QLabel*>(row->itemAt(0)->widget())) {
            name->setProperty("keeps room", true); // also of a cell that has no formula
            name->show();
            name->setFixedWidth(token::row_numbers - 1);
            name->setAlignment(Qt::AlignCenter);
        }
        row->addSpacing(26);
    }
    bands.addWidget(band);
}

void add_ruled(const LayoutNode& node, QVBoxLayout& bands, FormView& view) {
    auto* band = new RuledBand(&view);
    const bool status = node.kind == Kind::StatusLine;
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(16, status ? 3 : 12, 16, status ? 3 : 12);
    row->setSpacing(status ? 16 : token::gap);
    LayoutPlace place{view};
    place.quiet = status;
    add_node(node, *row, place);
    bands.addWidget(band);
}

QVBoxLayout* add_rest_band(QVBoxLayout& bands, FormKind kind) {
    auto* box = new QVBoxLayout;
    if (kind != FormKind::List) box->setContentsMargins(16, bands.isEmpty() ? 16 : 0, 16, 4);
    box->setSpacing(0);
    bands.addLayout(box, 1);
    return box;
}

// Below the last grid of a dialog stands the rule of its buttons, not a row of fields.
void part_from_buttons(QVBoxLayout* rest_band) {
    if (rest_band == nullptr) return;
    QMargins margins = rest_band->contentsMargins();
    margins.setBottom(token::margin);
    rest_band->setContentsMargins(margins);
}

} // namespace

FormKind kind_of(const LayoutNode& root) {
    if (contains(root, Kind::Buttons)) return FormKind::Dialog;
    return contains(root, Kind::Title) ? FormKind::Document : FormKind::List;
}

void add_bands(const LayoutNode& root, QVBoxLayout& bands, FormView& view, FormKind kind) {
    const std::vector<LayoutNode> single{root};
    const auto& nodes = root.kind == Kind::Rows ? root.children : single;
    std::vector<LayoutNode> block;
    bool rest = false;
    QVBoxLayout* rest_band = nullptr; // grids that take turns share one: the hidden takes no room
    auto close_block = [&] {
        add_block(block, bands, view, kind);
        block.clear();
    };
    for (const LayoutNode& node : nodes) {
        switch (node.kind) {
        case Kind::ToolBar:
            close_block();
            add_node(node, bands, LayoutPlace{view});
            break;
        case Kind::Buttons:
            part_from_buttons(rest_band);
            [[fallthrough]];
        case Kind::StatusLine:
            close_block();
            if (!rest) bands.addStretch(1);
            rest = true;
            add_ruled(node, bands, view);
            break;
        case Kind::Rest:
        case Kind::Splitter:
            close_block();
            rest = true;
            if (rest_band == nullptr) rest_band = add_rest_band(bands, kind);
            add_node(node, *rest_band, LayoutPlace{view});
            continue;
        default:
            if (kind == FormKind::List && tells_about_a_cell(node)) {
                close_block();
                add_cell_band(node, bands, view);
                break;
            }
            block.push_back(node);
        }
        rest_band = nullptr;
    }
    close_block();
    if (!rest) bands.addStretch(1);
}

void build_layout(const LayoutNode& root, FormView& view) {
    auto* bands = new QVBoxLayout(&view);
    bands->setContentsMargins(0, 0, 0, 0);
    bands->setSpacing(0);
    add_bands(root, *bands, view, kind_of(root));
}

} // namespace desktop
