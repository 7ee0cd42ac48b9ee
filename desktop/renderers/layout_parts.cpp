// Rows, columns, groups, fields and texts of a form.
#include "desktop/renderers/layout_parts.h"

#include <QBoxLayout>
#include <QFrame>
#include <QLabel>
#include <QSplitter>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/hint_line.h"
#include "desktop/renderers/justified_label.h"
#include "desktop/renderers/layout_builder.h"
#include "desktop/renderers/renderers.h"
#include "desktop/renderers/splitter.h"
#include "desktop/renderers/title_label.h"
#include "desktop/renderers/tool_strip.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

using host::LayoutNode;
using Kind = LayoutNode::Kind;

constexpr int between_fields = 16, widest_sentence = 460;
// A code is short and its name stands beside it; a wider field with a button holds the whole text.
constexpr int widest_code = 20;

QString label_of(const LayoutNode& node) {
    if (!node.text.empty() || !node.control) return qt(node.text);
    return qt(node.control->Caption.get());
}

bool is_segment(const LayoutNode& node) {
    return node.kind == Kind::Control && dynamic_cast<host::TSpeedButton*>(node.control);
}

// The label that stands at the left edge of a row; empty when the row begins with something else.
QString first_label(const LayoutNode& node) {
    switch (node.kind) {
    case Kind::Field: return label_of(node);
    case Kind::Group: return qt(node.text);
    case Kind::Columns: return node.children.empty() ? QString() : first_label(node.children[0]);
    default: return {};
    }
}

JustifiedLabel* new_label(const QString& text, const LayoutPlace& place) {
    auto* label = new JustifiedLabel(text, &place.view);
    if (place.quiet) label->setFont(fonts::small());
    if (place.label_width > 0) label->setFixedWidth(place.label_width);
    label->setFixedHeight(token::control);
    return label;
}

// What all labels have from the place they stand in.
void fit_label(const LayoutNode& node, QWidget& widget, const LayoutPlace& place) {
    auto* label = dynamic_cast<host::TLabel*>(node.control);
    if (!label) return;
    if (node.width < 0) {
        widget.setProperty("keeps room", true);
        widget.setVisible(label->Visible);
    }
    if (place.label_height > 0) widget.setMinimumHeight(place.label_height);
}

// A text that comes and goes in the room between others stands before what follows it, and keeps
// that room while it is hidden: nothing else moves.
void fill_gap(QWidget& widget) {
    auto* text = qobject_cast<QLabel*>(&widget);
    if (text == nullptr) return;
    text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setRetainSizeWhenHidden(true);
    text->setSizePolicy(policy);
}

QWidget* draw_in_place(const LayoutNode& node, const LayoutPlace& place) {
    const bool formula = place.formula && node.width < 0;
    place.view.set_label_look(formula       ? LabelLook::Formula
                              : place.quiet ? LabelLook::Quiet
                                            : LabelLook::Plain);
    QWidget* widget = draw_control(*node.control, place.view);
    place.view.set_label_look(LabelLook::Plain);
    fit_label(node, *widget, place);
    give_width(node, *widget);
    return widget;
}

bool holds(const LayoutNode& node, bool (*wanted)(const host::TControl&)) {
    if (node.control && wanted(*node.control)) return true;
    return std::any_of(node.children.begin(), node.children.end(),
                       [wanted](const LayoutNode& child) { return holds(child, wanted); });
}

void add_field(const LayoutNode& node, QBoxLayout& box, const LayoutPlace& place) {
    auto* row = new QHBoxLayout;
    row->setSpacing(token::gap);
    if (const QString text = label_of(node); !text.isEmpty()) {
        JustifiedLabel* label = new_label(text, place);
        host::TControl* control = node.control;
        place.view.listen(*control, [label, control] { label->setVisible(control->Visible); });
        row->addWidget(label);
    } else if (place.label_width > 0 && place.in_rows) {
        row->addSpacing(place.label_width + token::gap);
    }
    QWidget* widget = draw_in_place(node, place);
    widget->setAccessibleName(qt(node.control->Name()));
    // A text that takes the rest is cut where the rest ends, instead of pushing the window wider.
    if (node.width < 0 && dynamic_cast<host::TLabel*>(node.control))
        widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(widget, node.width < 0 ? 1 : 0);
    if (place.in_rows && node.width >= 0) row->addStretch(1);
    box.addLayout(row, node.width < 0 ? 1 : 0);
}

void add_control(const LayoutNode& node, QBoxLayout& box, const LayoutPlace& place) {
    QWidget* widget = draw_in_place(node, place);
    if (!place.in_rows) {
        if (node.width < 0) fill_gap(*widget);
        // Aligned in a cell of its own size, a widget would not fill it.
        const bool fills = node.width < 0 && qobject_cast<QLabel*>(widget);
        box.addWidget(widget, node.width < 0 ? 1 : 0, fills ? Qt::Alignment() : Qt::AlignVCenter);
        return;
    }
    // A text that is hidden leaves no gap where it would stand.
    if (dynamic_cast<host::TLabel*>(node.control) && node.width >= 0)
        return box.addWidget(widget, 0, Qt::AlignLeft);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    const bool flag = dynamic_cast<host::TCheckBox*>(node.control);
    if (flag && place.label_width > 0) row->addSpacing(place.label_width + token::gap);
    row->addWidget(widget, node.width < 0 ? 1 : 0);
    if (node.width >= 0) row->addStretch(1);
    box.addLayout(row);
}

// Neighbouring speed buttons stand as one row of segments that share their borders.
std::size_t add_segments(const std::vector<LayoutNode>& nodes, std::size_t at, QBoxLayout& box,
                         const LayoutPlace& place) {
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    bool first = true;
    while (at < nodes.size() && is_segment(nodes[at])) {
        QWidget* widget = draw_control(*nodes[at].control, place.view);
        if (nodes[at].width > 0) widget->setFixedWidth(width_of_characters(nodes[at].width));
        widget->setProperty("first", first);
        first = false;
        row->addWidget(widget);
        ++at;
    }
    box.addLayout(row);
    return at;
}

void add_columns(const LayoutNode& node, QBoxLayout& box, LayoutPlace place) {
    auto* row = new QHBoxLayout;
    row->setSpacing(between_fields);
    const bool lined_up = place.in_rows;
    place.in_rows = false;
    place.quiet = place.quiet || holds(node, [](const host::TControl& control) {
        return control.Name() == "ConditionLabel";
    });
    // A badge comes and goes; the rows around it stay where they are.
    if (holds(node, [](const host::TControl& control) {
            return dynamic_cast<const host::TPanel*>(&control) != nullptr;
        }))
        row->addStrut(token::control);
    for (std::size_t i = 0; i < node.children.size();) {
        if (is_segment(node.children[i])) {
            i = add_segments(node.children, i, *row, place);
            continue;
        }
        LayoutPlace inner = place;
        if (i > 0 || !lined_up) inner.label_width = 0;
        add_node(node.children[i++], *row, inner);
    }
    const bool pushed = std::any_of(node.children.begin(), node.children.end(), [](auto& child) {
        return child.kind == Kind::Spring || child.kind == Kind::Rest || child.width < 0;
    });
    if (lined_up && !pushed) row->addStretch(1);
    box.addLayout(row);
}

void add_rows(const LayoutNode& node, QBoxLayout& box, LayoutPlace place) {
    auto* column = new QVBoxLayout;
    column->setSpacing(token::gap);
    place.label_width = shared_label_width(node.children);
    place.in_rows = true;
    for (const LayoutNode& child : node.children) add_node(child, *column, place);
    box.addLayout(column, 0);
}

// A group is a label with its rows to the right, in line with the fields around it.
void add_group(const LayoutNode& node, QBoxLayout& box, LayoutPlace place) {
    auto* row = new QHBoxLayout;
    row->setSpacing(token::gap);
    row->addWidget(new_label(qt(node.text), place), 0, Qt::AlignTop);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    place.label_width = shared_label_width(node.children);
    for (const LayoutNode& child : node.children) add_node(child, *column, place);
    row->addLayout(column, 1);
    box.addLayout(row);
}

void add_text(const LayoutNode& node, QBoxLayout& box, const LayoutPlace& place) {
    if (node.text.find('[') != std::string::npos) {
        box.addWidget(new HintLine(qt(node.text), &place.view), 0, Qt::AlignVCenter);
        return;
    }
    auto* label = new QLabel(qt(node.text), &place.view);
    label->setTextFormat(Qt::PlainText);
    label->setFont(fonts::small());
    label->setWordWrap(place.in_rows);
    // A sentence stands on one line where a dialog can be as wide as it.
    if (place.in_rows)
        label->setMinimumWidth(std::min(label->fontMetrics().horizontalAdvance(label->text()) + 2,
                                        widest_sentence));
    QPalette ink = label->palette();
    ink.setColor(QPalette::WindowText, place.in_rows ? token::ink_2 : token::ink_3);
    label->setPalette(ink);
    box.addWidget(label);
}

void add_rule(QBoxLayout& box, const LayoutPlace& place) {
    auto* line = new QFrame(&place.view);
    line->setAutoFillBackground(true);
    QPalette ground = line->palette();
    ground.setColor(QPalette::Window, token::rule_2);
    line->setPalette(ground);
    if (place.in_rows) line->setFixedHeight(1);
    else line->setFixedSize(1, 20);
    box.addWidget(line);
}

void add_splitter(const LayoutNode& node, QBoxLayout& box, const LayoutPlace& place) {
    auto* splitter = new Splitter(node.horizontal ? Qt::Horizontal : Qt::Vertical, &place.view);
    for (const LayoutNode& child : node.children) {
        auto* part = new QWidget(splitter);
        auto* column = new QVBoxLayout(part);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        add_bands(child, *column, place.view, FormKind::List);
        splitter->addWidget(part);
    }
    splitter->share(node.share);
    box.addWidget(splitter, 1);
}

void add_buttons(const LayoutNode& node, QBoxLayout& box, const LayoutPlace& place) {
    auto* row = new QHBoxLayout;
    row->setSpacing(token::gap);
    row->addStretch(1);
    for (const LayoutNode& child : node.children)
        if (child.control) row->addWidget(draw_control(*child.control, place.view));
    box.addLayout(row);
}

} // namespace

int shared_label_width(const std::vector<LayoutNode>& rows) {
    int width = 0;
    for (const LayoutNode& row : rows) {
        const QString text = first_label(row);
        if (!text.isEmpty())
            width = std::max(width, JustifiedLabel(text, nullptr).sizeHint().width());
    }
    return width == 0 ? 0 : std::max(width, 54);
}

void give_width(const LayoutNode& node, QWidget& widget) {
    if (node.width < 0 || !node.control) return;
    const bool link = dynamic_cast<host::TLinkEdit*>(node.control);
    const bool edge = dynamic_cast<host::TDateEdit*>(node.control) ||
                      dynamic_cast<host::TComboBox*>(node.control) || link;
    const bool edit = edge || dynamic_cast<host::TEdit*>(node.control);
    if (!edit) return;
    int characters = node.width;
    if (characters == 0)
        characters = edge ? 10 : dynamic_cast<host::TNumberEdit*>(node.control) ? 8 : 20;
    const int width = width_of_characters(characters) + (edge ? 20 : 0);
    auto* code = link ? widget.findChild<FieldEdit*>() : nullptr;
    auto* name = link && characters > widest_code ? widget.findChild<QLabel*>() : nullptr;
    if (name) name->hide();
    (code ? static_cast<QWidget*>(code) : &widget)->setFixedWidth(width);
}

void add_node(const LayoutNode& node, QBoxLayout& box, LayoutPlace place) {
    switch (node.kind) {
    case Kind::Rows: return add_rows(node, box, place);
    case Kind::Columns: return add_columns(node, box, place);
    case Kind::Group: return add_group(node, box, place);
    case Kind::Field: return add_field(node, box, place);
    case Kind::Control: return add_control(node, box, place);
    case Kind::Text: return add_text(node, box, place);
    case Kind::Rule: return add_rule(box, place);
    case Kind::Splitter: return add_splitter(node, box, place);
    case Kind::Buttons: return add_buttons(node, box, place);
    case Kind::Spring: return box.addStretch(1);
    case Kind::Space: return box.addSpacing(8 * std::max(node.width, 1));
    case Kind::ToolBar: return box.addWidget(new ToolStrip(node.actions, place.view));
    case Kind::Title:
        return box.addWidget(new TitleLabel(qt(node.text), &place.view), 0, Qt::AlignHCenter);
    case Kind::Rest: return box.addWidget(draw_control(*node.control, place.view), 1);
    case Kind::StatusLine:
        for (const LayoutNode& child : node.children) add_node(child, box, place);
        return;
    }
}

} // namespace desktop
